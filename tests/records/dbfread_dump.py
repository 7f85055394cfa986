#!/usr/bin/python3
"""Prints a dBase table as python3-dbfread reads it, as JSON: header flags, field names and
the live records (values as text)."""
import json
import sys

from dbfread import DBF

table = DBF(sys.argv[1], encoding="cp1252", load=True, char_decode_errors="strict")
print(json.dumps({
    "mdx": table.header.mdx_flag,
    "language": table.header.language_driver,
    "fields": table.field_names,
    "records": [[None if v is None else str(v) for v in r.values()] for r in table.records],
    "deleted": len(table.deleted),
}))
