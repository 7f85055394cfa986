#!/usr/bin/python3
"""Prints the validators of a data directory as python3-dbfread reads them, one line each:
identification, description, generation of the validator row (PRIX0 * 250 + PRIX1), number of
channel rows, number of distinct channels, and the generations of the channel rows; then the
identifications of channel rows that belong to no validator row."""
import os
import sys

from dbfread import DBF


def table(directory, name):
    for entry in os.listdir(directory):
        if entry.lower() == name.lower():
            return DBF(os.path.join(directory, entry), encoding="cp1252", load=True)
    sys.exit("no " + name)


d = sys.argv[1]
channels = {}
for row in table(d, "Canaux.dbf").records:
    c = channels.setdefault(row["MONNAYEUR"].rstrip(), [0, set(), set()])
    c[0] += 1
    c[1].add(row["CANAL"])
    c[2].add(int(row["HFUHIGHMAX"]) * 250 + int(row["HFUHIGHMIN"]))
names = set()
for row in table(d, "Monnayeur.DBF").records:
    ident = row["IDENT"].rstrip()
    names.add(ident)
    c = channels.get(ident, [0, set(), set()])
    print("\t".join([ident, row["DESCRIPTIO"].rstrip(),
                     str(int(row["PRIX0"]) * 250 + int(row["PRIX1"])), str(c[0]), str(len(c[1])),
                     ",".join(str(g) for g in sorted(c[2]))]))
for ident in sorted(set(channels) - names):
    print("orphan\t" + ident)
