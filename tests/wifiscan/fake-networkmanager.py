#!/usr/bin/python3
"""A stand-in for NetworkManager on the bus of DBUS_SYSTEM_BUS_ADDRESS, with one device, wlp3s0.

usage: fake-networkmanager.py LAST_SCAN ACTION

LAST_SCAN is how many milliseconds ago the device has scanned, -1 for never. ACTION is what a request
for a scan does: Python, in which scanned() does what the end of a scan does, refuse(NAME) answers
with that error, gone() ends the service, say(WORD) writes a line, and later(say, WORD) does that once
the answer is sent. Writes the line "ready" when it is; ends with the bus.
"""
import sys
import time

import dbus
import dbusmock

MOCK = dbusmock.MOCK_IFACE
WIRELESS = "org.freedesktop.NetworkManager.Device.Wireless"

# Run within the stand-in, where a function sees only what it is given.
PRELUDE = f"""
import os
from gi.repository import GLib
def refuse(name, dbus=dbus):
    raise dbus.exceptions.DBusException('for some reason', name=name)
def scanned(self=self, dbus=dbus):
    last = self.Get('{WIRELESS}', 'LastScan')
    self.UpdateProperties('{WIRELESS}', {{'Bitrate': dbus.UInt32(1), 'LastScan': dbus.Int64(last + 1)}})
def gone(os=os):
    os._exit(1)
def say(word):
    print(word, flush=True)
def later(action, word, GLib=GLib):
    GLib.idle_add(lambda: action(word))
"""

ago, action = int(sys.argv[1]), sys.argv[2]
server = dbusmock.DBusTestCase.spawn_server_template("networkmanager", system_bus=True)[0]
bus = dbusmock.DBusTestCase.get_dbus(True)
manager = bus.get_object("org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager")
path = manager.AddWiFiDevice("wifi", "wlp3s0", dbus.UInt32(100), dbus_interface=MOCK)
device = dbus.Interface(bus.get_object("org.freedesktop.NetworkManager", path), MOCK)
last = -1 if ago < 0 else int(time.clock_gettime(time.CLOCK_BOOTTIME) * 1000) - ago
device.AddProperty(WIRELESS, "LastScan", dbus.Int64(last))
device.AddMethod(WIRELESS, "RequestScan", "a{sv}", "", PRELUDE + action)
print("ready", flush=True)
server.wait()
