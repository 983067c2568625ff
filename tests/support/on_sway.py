#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Runs a program on a Wayland compositor of its own: on_sway.py OUTPUT... -- PROGRAM [ARGUMENT...], an OUTPUT being a
line of sway's configuration"""
import os
import subprocess
import sys

from swayhost import launch_sway

end = sys.argv.index("--")
sway = launch_sway(*sys.argv[1:end])
environment = {**os.environ, "QT_QPA_PLATFORM": "wayland", "COMPOSITOR": str(sway.pid)}
sys.exit(subprocess.run(sys.argv[end + 1:], env=environment).returncode)
