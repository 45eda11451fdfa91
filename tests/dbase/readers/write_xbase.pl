# Writes a table of users with DBD::XBase; the third of its four records is deleted.
use strict;
use warnings;
use XBase;

my $table = XBase->create(
    name => $ARGV[0],
    field_names => ['USERID', 'PASSWORD', 'IDENTIFIER', 'EXPDATE', 'STATUS'],
    field_types => ['C', 'C', 'C', 'C', 'C'],
    field_lengths => [10, 20, 20, 8, 1],
    field_decimals => [0, 0, 0, 0, 0],
) or die XBase->errstr;
my @rows = (
    ['ADMIN', 'secret', 'The boss', '27-01-31', 'A'],
    ["M\xFCller", 'x y', '', '', 'I'],
    ['GONE', '', '', '', 'I'],
    ['0123456789', '', '', 'YY-MM-DD', 'A'],
);
for my $number (0 .. $#rows) {
    $table->set_record($number, @{$rows[$number]}) or die $table->errstr;
}
$table->delete_record(2) or die $table->errstr;
$table->close;
