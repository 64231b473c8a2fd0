"""Reads a log of the bus and groups it by channel and identifier.

Makes the log from a big-endian recording when there is none yet: BLF, the quickest of the formats
that python-can reads with the channel. Prints the seconds that reading and grouping took, the
number of messages and the number of groups.
"""
import os
import struct
import sys
import time

import can


def write(recording, log):
    with open(recording, "rb") as file:
        samples = file.read()[128:]
    with can.BLFWriter(log) as writer:
        for data, channel, number, high, low in struct.iter_unpack(">8s2xHI4xII", samples):
            writer(can.Message(
                timestamp=high * 134.217728 + low * 31.25 * 1e-9, channel=channel,
                arbitration_id=number & 0x7FFFFFFF, is_extended_id=False, data=data))


def load(log):
    lists = {}
    for message in can.BLFReader(log):
        lists.setdefault((message.channel, message.arbitration_id), []).append(message)
    return lists


recording = sys.argv[1]
log = recording + ".blf"
if not os.path.exists(log):
    write(recording, log)
start = time.perf_counter()
lists = load(log)
print(time.perf_counter() - start, sum(map(len, lists.values())), len(lists))
