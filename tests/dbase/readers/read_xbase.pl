# Prints the records of a table as DBD::XBase reads them: a line each, its values separated by "|".
use strict;
use warnings;
use XBase;

my $table = XBase->new($ARGV[0]) or die XBase->errstr;
for my $number (0 .. $table->last_record) {
    my ($deleted, @values) = $table->get_record($number);
    die $table->errstr unless defined $deleted;
    print join('|', map { defined $_ ? $_ : '' } @values), "\n" unless $deleted;
}
