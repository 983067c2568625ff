# SPDX-License-Identifier: MIT
"""A Wayland compositor of one's own, without a picture that anybody sees."""
import atexit
import glob
import os
import subprocess

from xhost import wait_for

# Set for a clock, it has the toolkit present its frames.
LEFT_TO_TOOLKIT = "QT_WAYLAND_RECONNECT"


def launch_sway(*outputs, backend="headless"):
    """Starts sway with an output for each of the given lines of its configuration (such as "resolution 800x600"), points
    WAYLAND_DISPLAY and SWAYSOCK to it and returns its process. The outputs of the backend "x11" are windows of an X
    server."""
    runtime = os.environ["XDG_RUNTIME_DIR"]
    configuration = os.path.join(runtime, "sway.conf")
    with open(configuration, "w", encoding="utf-8") as file:
        name = {"headless": "HEADLESS", "x11": "X11"}[backend]
        file.writelines(f"output {name}-{number} {line}\n" for number, line in enumerate(outputs, 1))
        file.write("output * background #203040 solid_color\nxwayland disable\ndefault_border none\n")
    own = {"WLR_BACKENDS": backend, "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1",
           f"WLR_{backend.upper()}_OUTPUTS": str(len(outputs))}
    known = set(sockets())
    # The name of a control that is gone would be used again.
    os.environ.pop("SWAYSOCK", None)
    # It starts for nobody who could become root; what root owns is this other user's in there.
    become = ["unshare", "--user", "--map-user=1000", "--map-group=1000"] if os.geteuid() == 0 else []
    sway = subprocess.Popen([*become, "sway", "-c", configuration], env={**os.environ, **own},
                            stderr=subprocess.DEVNULL)
    atexit.register(sway.wait)
    atexit.register(sway.terminate)
    os.environ["WAYLAND_DISPLAY"] = wait_for("sway", lambda: set(sockets()) - known).pop()
    os.environ["SWAYSOCK"] = wait_for("its control", lambda: glob.glob(f"{runtime}/sway-ipc.*.{sway.pid}.sock"))[0]
    return sway


def sockets():
    found = glob.glob(f"{os.environ['XDG_RUNTIME_DIR']}/wayland-*")
    return [os.path.basename(name) for name in found if not name.endswith(".lock")]
