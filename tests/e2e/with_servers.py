"""The program with a servers.conf beside it, in a folder of its own: the file of the build's own
folder would be that of every test that runs meanwhile."""
import os
import shutil
from pathlib import Path


class ProgramWithServers:
    """A copy of the program in `folder`, beside the databases of the original."""

    def __init__(self, program, folder):
        self.folder = Path(folder)
        self.program = self.folder / program.name
        shutil.copy2(program, self.program)
        os.symlink(program.parent / "Databases", self.folder / "Databases")

    def know(self, **servers):
        """Names the servers; those that are not given are unknown."""
        lines = "".join(f"{key} = {address}\n" for key, address in servers.items())
        (self.folder / "servers.conf").write_text(lines, encoding="ascii")
