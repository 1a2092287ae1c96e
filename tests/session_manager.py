#!/usr/bin/env python3
"""A session manager of one client. Prints where it listens, then takes lines: "save" asks the client to keep what it has
since the session is about to end, "end" ends it. Prints "kept" when the client has done so, "gone" when it has left.

  session_manager.py SOCKET
"""
import os
import select
import socket
import struct
import sys

REGISTER, REGISTERED, SAVE_YOURSELF, SAVE_DONE, DIE, SAVE_COMPLETE = 1, 2, 3, 8, 9, 18
CORE, XSMP = 0, 1  # the second number is ours to give
LOCAL, BOTH = 1, 2  # what is to be saved


def text(letters):
    data = struct.pack("<H", len(letters)) + letters
    return data + bytes(-len(data) % 4)


def main():
    address = sys.argv[1]
    listener = socket.socket(socket.AF_UNIX)
    listener.bind(address)
    listener.listen()
    print(f"listens local/{os.uname().nodename}:{address}", flush=True)
    client, _ = listener.accept()

    def take(size):
        data = b""
        while len(data) < size:
            chunk = client.recv(size - len(data))
            if not chunk:
                raise EOFError
            data += chunk
        return data

    def message():
        head = take(8)
        return head[0], head[1], take(8 * struct.unpack("<I", head[4:])[0])

    def send(major, minor, body=b"", third=0, fourth=0):
        body += bytes(-len(body) % 8)
        client.sendall(struct.pack("<BBBBI", major, minor, third, fourth, len(body) // 8) + body)

    try:
        send(CORE, 1)  # our byte order, the low one first
        while True:
            watched, _, _ = select.select([client, sys.stdin], [], [])
            if sys.stdin in watched:
                line = sys.stdin.readline()
                if not line:
                    return
                send(XSMP, *((DIE,) if line == "end\n" else (SAVE_YOURSELF, bytes([BOTH, True, 0, 0]))))
            if client not in watched:
                continue
            major, minor, _ = message()
            if (major, minor) == (CORE, 2):  # set up: nobody has to prove anything
                send(CORE, 6, text(b"tests") + text(b"1"))
            elif (major, minor) == (CORE, 7):
                send(CORE, 8, text(b"tests") + text(b"1"), 0, XSMP)
            elif (major, minor) == (XSMP, REGISTER):
                send(XSMP, REGISTERED, struct.pack("<I", 4) + b"this")
                send(XSMP, SAVE_YOURSELF, bytes([LOCAL, False, 0, 0]))
            elif (major, minor) == (XSMP, SAVE_DONE):
                print("kept", flush=True)
                send(XSMP, SAVE_COMPLETE)
    except (EOFError, ConnectionError):
        print("gone", flush=True)
    finally:
        os.remove(address)


if __name__ == "__main__":
    main()
