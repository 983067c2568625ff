# SPDX-License-Identifier: MIT
"""A location service for python3-dbusmock: one client that answers as the parameter "answer" says.

good              a position of now, 60.1699 N 24.9384 E, 25 km
stale-then-good   one elsewhere that is 301 seconds old before it
nowhere-then-good a location without coordinates before it
rejected          the user says no
disabled          location is switched off
no-agent          there is nobody who could be asked
silent            consent, and then nothing
vanishing         consent, and then the service is gone
"""

BUS_NAME = "org.freedesktop.GeoClue2"
MAIN_OBJ = "/org/freedesktop/GeoClue2/Manager"
MAIN_IFACE = BUS_NAME + ".Manager"
SYSTEM_BUS = True

CLIENT = "/org/freedesktop/GeoClue2/Client/1"
CLIENT_IFACE = BUS_NAME + ".Client"
LOCATION_IFACE = BUS_NAME + ".Location"
CITY = 4

# What the real service checks before anything else.
CHECK = f"""
client = self.props["{CLIENT_IFACE}"]
if client["DesktopId"] != "org.tamsel.PelkoLocation" or client["RequestedAccuracyLevel"] != {CITY}:
    raise dbus.exceptions.DBusException("'DesktopId' property must be set", name="%(denied)s")
""" % {"denied": "org.freedesktop.DBus.Error.AccessDenied"}


def refuse(text):
    return f'raise dbus.exceptions.DBusException("{text}", name="org.freedesktop.DBus.Error.AccessDenied")'


def answer(*names):
    """Signals come before the reply, as they may with the real service."""
    location = "/org/freedesktop/GeoClue2/Client/1/Location/"
    return "\n".join(
        f'self.EmitSignal("{CLIENT_IFACE}", "LocationUpdated", "oo",'
        f' [dbus.ObjectPath("/"), dbus.ObjectPath("{location}{name}")])'
        for name in names
    )


def exit_after(milliseconds):
    return f"import os; from gi.repository import GLib; GLib.timeout_add({milliseconds}, lambda: os._exit(0))"


ANSWERS = {
    "good": answer("good"),
    "stale-then-good": answer("stale", "good"),
    "nowhere-then-good": answer("nowhere", "good"),
    "rejected": refuse("Agent rejected 'org.tamsel.PelkoLocation' for user '1000'."),
    "disabled": refuse("Geolocation disabled for UID 1000"),
    "no-agent": refuse("'org.tamsel.PelkoLocation' disallowed, no agent for UID 1000"),
    "silent": "",
    "vanishing": exit_after(50),
}


def add_location(mock, dbus, name, age, **place):
    import time

    found = int(time.time()) - age
    properties = {key: dbus.Double(value) for key, value in place.items()}
    properties["Timestamp"] = dbus.Struct((dbus.UInt64(found), dbus.UInt64(0)), signature="tt")
    mock.AddObject(f"{CLIENT}/Location/{name}", LOCATION_IFACE, properties, [])


def load(mock, parameters):
    import dbus

    mock.AddProperties(MAIN_IFACE, {"AvailableAccuracyLevel": dbus.UInt32(CITY)})
    mock.AddMethod(MAIN_IFACE, "GetClient", "", "o", f'ret = dbus.ObjectPath("{CLIENT}")')
    start = CHECK + ANSWERS[parameters.get("answer", "good")]
    client = {"DesktopId": "", "RequestedAccuracyLevel": dbus.UInt32(0), "Active": False}
    mock.AddObject(CLIENT, CLIENT_IFACE, client, [("Start", "", "", start), ("Stop", "", "", "")])
    add_location(mock, dbus, "good", 0, Latitude=60.1699, Longitude=24.9384, Accuracy=25000.0)
    add_location(mock, dbus, "stale", 301, Latitude=51.5, Longitude=0.0, Accuracy=25000.0)
    add_location(mock, dbus, "nowhere", 0, Accuracy=25000.0)
