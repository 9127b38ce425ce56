#!/bin/sh
# Without a display ./run says in one line what is missing and how to start it under a virtual one,
# and fails. The argument is the project's folder.
said=$(env -u DISPLAY -u WAYLAND_DISPLAY "$1/run" 2>&1)
status=$?
echo "$said"
[ "$status" -ne 0 ] && [ "$(echo "$said" | wc -l)" -eq 1 ] && echo "$said" | grep -q 'xvfb-run .*\./run'
