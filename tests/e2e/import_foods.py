#!/usr/bin/env python3
"""Tables of foods brought in by the window, with the real mouse and keyboard.

Chooses a table in the form of Ciqual, imports it, finds "camembert" in the standard list and drags it
into the morning; begins to import a long table and stops in the middle, which leaves nothing; removes
the set, and the day keeps what was eaten; finds a product by its barcode, as a scanner types it. What
lies on the disk is read from outside. The argument is the built program.
"""
import sys
from pathlib import Path

from day_file_reader import LINE_END, pieces, read_day_file
from desktop import Desktop
from one_day import MORNING, end, make_user_and_day, row

IMPORT, MAIN = "^Import foods$", "^Kelvora FOOD$"
# Places on a screen of 1024 x 768.
SEARCH = (220, 257)
FILE, IMPORT_BUTTON, STOP, CLOSE = (143, 75), (691, 631), (782, 631), (871, 631)
IMPORTED_PAGE, FIRST_SET, REMOVE = (269, 157), (260, 210), (850, 588)
SET = ["Ciqual.set.txt", "Ciqual: produits laitiers.dat"]
HEADER = ("alim_grp_nom_fr;alim_nom_fr;Energie, Règlement UE N° 1169/2011 (kJ/100 g);"
          "Energie, Règlement UE N° 1169/2011 (kcal/100 g);"
          "Protéines, N x facteur de Jones (g/100 g);Glucides (g/100 g);Lipides (g/100 g);"
          "AG saturés (g/100 g);AG monoinsaturés (g/100 g);AG polyinsaturés (g/100 g);"
          "Sodium (mg/100 g)\r\n")
CAMEMBERT = "produits laitiers;Camembert, au lait cru;1130;272;20,4;< 0,5;21;14,1;5,4;0,6;620\r\n"
# 5.4 + 0.6 grams of unsaturated fat.
LINE = ("Camembert, au lait cru½100 gram½100½1130½272½20.4½6½14.1½0½0.62½produits laitiers½½"
        "Ciqual: produits laitiers.dat½")
LONG_ROWS = 100_000
PRODUCTS = ("code\tproduct_name\tbrands\tpnns_groups_1\tenergy-kcal_100g\tproteins_100g\n"
            "3017620422003\tHazelnut spread\tFerrara\tSpreads\t500\t6.3\n"
            "3017620422010\tRusk\t\tCereals\t400\t12\n")
# 500 kilocalories are 2100 kilojoules.
PRODUCT = ("Hazelnut spread, Ferrara½100 gram½100½2100½500½6.3½0½0½0½0½Spreads½3017620422003½"
           "Open Food Facts: Spreads.dat½")


def write_tables(home):
    """Where the list of files opens. In the home itself lies the file of the screen, which changes all
    the time, and the list with it."""
    folder = Path(home, "Downloads")
    folder.mkdir()
    (folder / "ciqual.csv").write_bytes((HEADER + CAMEMBERT).encode("cp1252"))
    (folder / "products.csv").write_text(PRODUCTS, encoding="utf-8")
    with open(folder / "long.csv", "wb") as file:
        file.write(HEADER.encode("cp1252"))
        for number in range(LONG_ROWS):
            file.write(CAMEMBERT.replace("cru", f"cru {number}").encode("cp1252"))
    return folder


def databases(home):
    folder = Path(home, ".local/share/kelvora-food/Databases")
    return sorted(path.name for path in folder.iterdir()) if folder.exists() else []


def set_file(home):
    return Path(home, ".local/share/kelvora-food/Databases/Ciqual.set.txt").read_text(encoding="utf-8")


def windows(desktop, title):
    return len(desktop.output("xdotool", "search", "--onlyvisible", "--name", title).split())


def saved_morning(desktop):
    desktop.keys("ctrl+s")
    (day,) = Path(desktop.home.name, "Documents/Kelvora FOOD/My Users/Anna/Files").glob("*.kvf")
    return [line.decode("cp1252") for line in pieces(read_day_file(day)[3], LINE_END)]


def open_import(desktop):
    desktop.keys("alt+e", "Up", "Return")
    desktop.window(IMPORT)
    desktop.settle()


def choose(desktop, table):
    """By the button and the name of the file."""
    desktop.click(FILE)
    desktop.wait_for("the list of files", lambda: windows(desktop, IMPORT) == 2)
    desktop.settle()
    desktop.type(table.name)
    desktop.output("xdotool", "key", "Return")
    desktop.wait_for("the end of the list of files", lambda: windows(desktop, IMPORT) == 1)
    desktop.settle(seconds=180)  # its foods are counted


def answer(desktop, *keys):
    """Answers the box that stands over the windows, whose title is that of the main window."""
    desktop.wait_for("a box", lambda: windows(desktop, MAIN) == 2)
    desktop.settle()
    desktop.keys(*keys)


def close(desktop):
    desktop.click(CLOSE)
    desktop.no_window(IMPORT)
    desktop.settle()


def search_and_drag(desktop):
    desktop.click(SEARCH)
    desktop.keys("ctrl+a")
    desktop.type("camembert, au")
    desktop.drag(row(0), MORNING)


def import_and_eat(desktop, table):
    open_import(desktop)
    choose(desktop, table)
    desktop.click(IMPORT_BUTTON)
    answer(desktop, "alt+y")  # the licence
    answer(desktop, "Return")  # so many foods were added
    assert databases(desktop.home.name) == SET, databases(desktop.home.name)
    close(desktop)
    search_and_drag(desktop)
    assert saved_morning(desktop) == [LINE], saved_morning(desktop)


def stop_in_the_middle(desktop, table):
    open_import(desktop)
    choose(desktop, table)
    desktop.output("xdotool", "mousemove", *map(str, IMPORT_BUTTON), "click", "1")
    desktop.wait_for("the import", lambda: len(databases(desktop.home.name)) > len(SET))
    desktop.output("xdotool", "mousemove", *map(str, STOP), "click", "1")
    desktop.wait_for("the end of the import", lambda: databases(desktop.home.name) == SET)
    desktop.settle()
    assert windows(desktop, MAIN) == 1, "a box stands there: the import came to its end"
    assert "foods: 1\n" in set_file(desktop.home.name), set_file(desktop.home.name)


def remove_the_set(desktop):
    desktop.click(IMPORTED_PAGE)
    desktop.click(FIRST_SET)
    desktop.click(REMOVE)
    answer(desktop, "alt+y")
    desktop.wait_for("the end of the set", lambda: not databases(desktop.home.name))
    desktop.settle()
    close(desktop)
    search_and_drag(desktop)  # there is nothing to drag any more
    assert saved_morning(desktop) == [LINE], saved_morning(desktop)


def scan_a_barcode(desktop, table):
    """A scanner types the digits and Enter."""
    open_import(desktop)
    choose(desktop, table)
    desktop.click(IMPORT_BUTTON)
    answer(desktop, "alt+y")
    answer(desktop, "Return")
    close(desktop)
    desktop.click(SEARCH)
    desktop.keys("ctrl+a")
    desktop.type("3017620422003")
    desktop.keys("Return")
    desktop.drag(row(0), MORNING)
    assert saved_morning(desktop) == [LINE, PRODUCT], saved_morning(desktop)


def main():
    program = Path(sys.argv[1]).resolve()
    with Desktop() as desktop:
        tables = write_tables(desktop.home.name)
        process = desktop.start(program, first_run=True)
        make_user_and_day(desktop)
        import_and_eat(desktop, tables / "ciqual.csv")
        stop_in_the_middle(desktop, tables / "long.csv")
        remove_the_set(desktop)
        scan_a_barcode(desktop, tables / "products.csv")
        end(desktop, process)
    print("imported foods: as they must be")


if __name__ == "__main__":
    main()
