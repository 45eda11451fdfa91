# Prints the entries of an index as DBD::XBase walks them: a line each, record and key.
use strict;
use warnings;
use XBase::Index;

my $index = XBase::Index->new($ARGV[0]) or die XBase::Index->errstr;
$index->prepare_select or die $index->errstr;
while (my ($key, $record) = $index->fetch) {
    $key =~ s/ +$//;
    print "$record $key\n";
}
die $index->errstr if $index->errstr;
