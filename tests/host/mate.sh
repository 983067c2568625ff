#!/bin/bash
# SPDX-License-Identifier: MIT
# The real MATE screensaver: it finds the clock among its themes, shows it when activated and in its preferences.
. support/screen.sh
. support/screensaver.sh

export GSETTINGS_BACKEND=keyfile
start_screen 1280x720
gsettings set org.mate.screensaver mode single
gsettings set org.mate.screensaver themes "['screensavers-tamsel-clock']"
gsettings set org.mate.screensaver lock-enabled false
gsettings set org.mate.screensaver idle-activation-enabled false

drive_screensaver mate --no-daemon
