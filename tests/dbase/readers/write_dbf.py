"""Writes a table of users with python-dbf; the third of its four records is deleted."""
import sys

import dbf

table = dbf.Table(
    sys.argv[1],
    "USERID C(10); PASSWORD C(20); IDENTIFIER C(20); EXPDATE C(8); STATUS C(1)",
    dbf_type="db3",
    codepage=sys.argv[2],
)
table.open(mode=dbf.READ_WRITE)
for row in [
    ("ADMIN", "secret", "The boss", "27-01-31", "A"),
    ("M\u00fcller", "x y", "", "", "I"),
    ("GONE", "", "", "", "I"),
    ("0123456789", "", "", "YY-MM-DD", "A"),
]:
    table.append(row)
dbf.delete(table[2])
table.close()
