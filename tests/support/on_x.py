#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Runs a program with its windows on an X server of its own: on_x.py [SERVER-OPTION...] -- PROGRAM [ARGUMENT...]"""
import os
import subprocess
import sys

from xhost import launch_x_server

end = sys.argv.index("--")
server = launch_x_server("-screen", "0", "800x600x24", *sys.argv[1:end])
# The keyboard library copies names of known length that are not terminated, which strict string checks reject.
sanitizers = os.environ.get("ASAN_OPTIONS", "") + ":strict_string_checks=0"
environment = {**os.environ, "QT_QPA_PLATFORM": "xcb", "ASAN_OPTIONS": sanitizers, "X_SERVER": str(server.pid)}
sys.exit(subprocess.run(sys.argv[end + 1:], env=environment).returncode)
