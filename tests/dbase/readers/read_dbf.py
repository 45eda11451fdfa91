"""Prints the records of a table as python-dbf reads them: a line each, its values separated by "|"."""
import sys

import dbf

table = dbf.Table(sys.argv[1])
table.open(mode=dbf.READ_ONLY)
for record in table:
    if not dbf.is_deleted(record):
        values = "|".join(str(value).rstrip(" ") for value in record)
        sys.stdout.buffer.write(values.encode("cp1252") + b"\n")
