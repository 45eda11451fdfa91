# Searches an index for the first column of every record of a table, with DBD::XBase. Prints a line for each record:
# its number, and that of the first record found.
use strict;
use warnings;
use XBase;
use XBase::Index;

my $table = XBase->new($ARGV[0]) or die XBase->errstr;
my $index = XBase::Index->new($ARGV[1]) or die XBase::Index->errstr;
for my $number (0 .. $table->last_record) {
    my ($deleted, $wanted) = $table->get_record($number, $table->{'field_names'}[0]);
    $index->prepare_select_eq($wanted) or die $index->errstr;
    my ($key, $record) = $index->fetch;
    $key = '' unless defined $key;
    $key =~ s/ +$//;
    print $number + 1, ' ', $key eq $wanted ? $record : 'nothing', "\n";
}
