#!/usr/bin/python3
"""A bus, and on it a stand-in for NetworkManager with one device, wlp3s0.

usage: fake-networkmanager.py "LAST_SCAN [ACTION]"

LAST_SCAN is how many milliseconds ago the device has scanned, -1 for never. ACTION is what a request
for a scan does: Python, in which scanned() does what the end of a scan does, scanned(0) what another
change does, scanned(1, Device) the same as the end of a scan on an interface that has no scans,
refuse(NAME) answers with that error of org.freedesktop, gone() ends the service, and later(end)
ends the bus once the answer is sent. Without an action there is a bus only. Writes the address of
the bus when all is ready; ends with its standard input.
"""
import os
import subprocess
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
Device = 'org.freedesktop.NetworkManager.Device'
Resting = 'NetworkManager.Device.NotAllowed'
def refuse(name, dbus=dbus):
    raise dbus.exceptions.DBusException('for some reason', name='org.freedesktop.' + name)
def scanned(after=1, interface='{WIRELESS}', self=self, dbus=dbus):
    last = self.Get('{WIRELESS}', 'LastScan')
    changed = {{'Bitrate': dbus.UInt32(1), 'LastScan': dbus.Int64(last + after)}}
    self.EmitSignal(dbus.PROPERTIES_IFACE, 'PropertiesChanged', 'sa{{sv}}as', [interface, changed, []])
def gone(os=os):
    os._exit(1)
def end(dbus=dbus, os=os):
    dbus.SystemBus().get_object('org.freedesktop.DBus', '/').GetId() # so the answer has gone through
    os.kill(int(os.environ['BUS']), 15)
def later(action, GLib=GLib):
    GLib.idle_add(action)
"""

ago, _, action = sys.argv[1].partition(" ")
bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
address = bus.stdout.readline().strip()
os.environ.update(DBUS_SYSTEM_BUS_ADDRESS=address, BUS=str(bus.pid))
if action:
    server = dbusmock.DBusTestCase.spawn_server_template(
        "networkmanager", system_bus=True, stdout=subprocess.DEVNULL)
    system = dbus.SystemBus()
    manager = system.get_object("org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager")
    path = manager.AddWiFiDevice("wifi", "wlp3s0", dbus.UInt32(100), dbus_interface=MOCK)
    device = dbus.Interface(system.get_object("org.freedesktop.NetworkManager", path), MOCK)
    last = -1 if ago == "-1" else int(time.clock_gettime(time.CLOCK_BOOTTIME) * 1000) - int(ago)
    device.AddProperty(WIRELESS, "LastScan", dbus.Int64(last))
    device.AddMethod(WIRELESS, "RequestScan", "a{sv}", "", PRELUDE + action)
print(address, flush=True)
sys.stdin.read()
bus.terminate()
