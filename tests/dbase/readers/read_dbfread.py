"""Prints the records of a table as dbfread reads them: a line each, its values separated by "|"."""
import sys

from dbfread import DBF

for record in DBF(sys.argv[1], char_decode_errors="strict"):
    sys.stdout.buffer.write("|".join(record.values()).encode("cp1252") + b"\n")
