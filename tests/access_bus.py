"""A small D-Bus client: enough to walk the tree that a program shows to screen readers, and to hear what it tells."""
import os
import socket
import struct
import time


class Error(Exception):
    pass


def align(data, size):
    return data + b"\0" * (-len(data) % size)


def split(signature):
    """The single types of a signature."""
    types, start = [], 0
    while start < len(signature):
        end = start
        while signature[end] == "a":
            end += 1
        depth = 0
        while True:
            depth += (signature[end] in "({") - (signature[end] in ")}")
            end += 1
            if depth == 0:
                break
        types.append(signature[start:end])
        start = end
    return types


FIXED = {"y": "B", "n": "h", "q": "H", "i": "i", "u": "I", "b": "I", "x": "q", "t": "Q", "d": "d"}
ALIGNMENT = {"y": 1, "g": 1, "v": 1, "n": 2, "q": 2, "x": 8, "t": 8, "d": 8, "(": 8, "{": 8}


def put(data, kind, value):
    data = align(data, ALIGNMENT.get(kind[0], 4))
    if kind in FIXED:
        return data + struct.pack("<" + FIXED[kind], value)
    if kind in "so":
        text = value.encode()
        return data + struct.pack("<I", len(text)) + text + b"\0"
    if kind == "g":
        return data + bytes([len(value)]) + value.encode() + b"\0"
    if kind == "v":
        return put(put(data, "g", value[0]), value[0], value[1])
    if kind[0] == "a":
        body = align(data + b"\0" * 4, ALIGNMENT.get(kind[1], 4))
        start = len(body)
        for each in value:
            body = put(body, kind[1:], each)
        return body[: len(data)] + struct.pack("<I", len(body) - start) + body[len(data) + 4 :]
    for each, part in zip(split(kind[1:-1]), value):
        data = put(data, each, part)
    return data


def get(data, at, kind):
    at += -at % ALIGNMENT.get(kind[0], 4)
    if kind in FIXED:
        return struct.unpack_from("<" + FIXED[kind], data, at)[0], at + struct.calcsize(FIXED[kind])
    if kind in "so":
        size = struct.unpack_from("<I", data, at)[0]
        return data[at + 4 : at + 4 + size].decode(), at + 5 + size
    if kind == "g":
        return data[at + 1 : at + 1 + data[at]].decode(), at + 2 + data[at]
    if kind == "v":
        inner, at = get(data, at, "g")
        return get(data, at, inner)
    if kind[0] == "a":
        size = struct.unpack_from("<I", data, at)[0]
        at += 4
        at += -at % ALIGNMENT.get(kind[1], 4)
        end, values = at + size, []
        while at < end:
            value, at = get(data, at, kind[1:])
            values.append(value)
        return values, at
    values = []
    for each in split(kind[1:-1]):
        value, at = get(data, at, each)
        values.append(value)
    return tuple(values), at


class Bus:
    def __init__(self, address):
        options = dict(option.split("=", 1) for option in address.split(";")[0].split(":", 1)[1].split(","))
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(options["path"] if "path" in options else "\0" + options["abstract"])
        self.socket.sendall(b"\0AUTH EXTERNAL " + str(os.getuid()).encode().hex().encode() + b"\r\n")
        if not self.socket.recv(4096).startswith(b"OK"):
            raise Error("the bus refuses me")
        self.socket.sendall(b"BEGIN\r\n")
        self.data, self.serial, self.signals = b"", 0, []
        self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "Hello")

    def receive(self, deadline):
        """The next message; None if none comes in time."""
        while True:
            if len(self.data) >= 16:
                body, fields = struct.unpack_from("<I", self.data, 4)[0], struct.unpack_from("<I", self.data, 12)[0]
                size = 16 + fields + (-fields % 8) + body
                if len(self.data) >= size:
                    message, self.data = self.data[:size], self.data[size:]
                    header = dict(get(message, 12, "a(yv)")[0])
                    values, at = [], size - body
                    content = message[at:]
                    at = 0
                    for kind in split(header.get(8, "")):
                        value, at = get(content, at, kind)
                        values.append(value)
                    return message[1], header, values
            left = deadline - time.monotonic()
            if left <= 0:
                return None
            self.socket.settimeout(left)
            try:
                more = self.socket.recv(65536)
            except TimeoutError:
                return None
            if not more:
                raise Error("the bus is gone")
            self.data += more

    def call(self, to, path, interface, member, signature="", *arguments, patience=10):
        self.serial += 1
        fields = [(1, ("o", path)), (2, ("s", interface)), (3, ("s", member)), (6, ("s", to))]
        body = b""
        if signature:
            fields.append((8, ("g", signature)))
            for kind, argument in zip(split(signature), arguments):
                body = put(body, kind, argument)
        head = b"l\1\0\1" + struct.pack("<II", len(body), self.serial)
        self.socket.sendall(align(put(head, "a(yv)", fields), 8) + body)
        deadline = time.monotonic() + patience
        while message := self.receive(deadline):
            kind, header, values = message
            if kind == 4:
                self.signals.append((header, values))
            elif header.get(5) == self.serial:
                if kind == 3:
                    raise Error(f"{member}: {header.get(4)} {values}")
                return values[0] if len(values) == 1 else values
        raise Error(f"{member}: no answer")

    def listen(self, seconds):
        """The signals that have come, and those that come in so many seconds."""
        deadline = time.monotonic() + seconds
        while message := self.receive(deadline):
            if message[0] == 4:
                self.signals.append(message[1:])
        heard, self.signals = self.signals, []
        return heard


ATSPI = "org.a11y.atspi."
STATES = {1: "active", 7: "editable", 8: "enabled", 11: "focusable", 12: "focused", 16: "modal", 23: "selected", 25: "showing"}


class Node:
    """An object in the tree."""

    def __init__(self, bus, name, path):
        self.bus, self.owner, self.path = bus, name, path

    def __eq__(self, other):
        return self.path == other.path

    def call(self, interface, member, *arguments):
        return self.bus.call(self.owner, self.path, ATSPI + interface, member, *arguments)

    def get(self, interface, name):
        return self.bus.call(
            self.owner, self.path, "org.freedesktop.DBus.Properties", "Get", "ss", ATSPI + interface, name)

    @property
    def name(self):
        return self.get("Accessible", "Name")

    @property
    def role(self):
        return self.call("Accessible", "GetRoleName")

    @property
    def children(self):
        return [Node(self.bus, *each) for each in self.call("Accessible", "GetChildren")]

    @property
    def states(self):
        low, high = self.call("Accessible", "GetState")
        return {name for bit, name in STATES.items() if (low | high << 32) >> bit & 1}

    @property
    def interfaces(self):
        return [each.removeprefix(ATSPI) for each in self.call("Accessible", "GetInterfaces")]

    @property
    def actions(self):
        return [each[0] for each in self.call("Action", "GetActions")]

    def act(self, number=0):
        return self.call("Action", "DoAction", "i", number)

    @property
    def extents(self):
        return self.call("Component", "GetExtents", "u", 0)

    def walk(self):
        yield self
        for child in self.children:
            yield from child.walk()

    def find(self, role=None, name=None):
        for each in self.walk():
            if (role is None or each.role == role) and (name is None or each.name == name):
                return each
        return None

    def dump(self, depth=0):
        more = " ".join(sorted(self.states - {"enabled", "showing"}))
        print(f"{'  ' * depth}{self.role} \"{self.name}\" {more}")
        for child in self.children:
            child.dump(depth + 1)


def accessible_bus(session_address):
    """Turns the desktop's accessibility on and connects to its bus."""
    session = Bus(session_address)
    session.call("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", "ssv",
                 "org.a11y.Status", "IsEnabled", ("b", True), patience=20)
    return Bus(session.call("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"))


def hear(bus):
    """Asks all programs to tell what happens in their windows."""
    bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "AddMatch", "s",
             "type='signal',interface='org.a11y.atspi.Event.Object'")
    bus.call("org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry", "RegisterEvent",
             "sass", "object:", [], "")


def applications(bus):
    return Node(bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root").children
