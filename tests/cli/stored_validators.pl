#!/usr/bin/perl
# Prints the validators of a data directory as Perl XBase reads them, in the same lines as
# stored_validators.py.
use strict;
use warnings;
use XBase;

my $dir = shift;
sub table {
    my ($name) = @_;
    opendir(my $dh, $dir) or die "$dir: $!";
    my ($entry) = grep { lc($_) eq lc($name) } readdir($dh);
    closedir($dh);
    die "no $name" unless $entry;
    my $table = XBase->new(name => "$dir/$entry", ignorememo => 1);
    die XBase->errstr unless $table;
    return $table;
}
my %channels;
my $c = table("Canaux.dbf");
for my $i (0 .. $c->last_record) {
    my $row = $c->get_record_as_hash($i);
    next if $row->{_DELETED};
    (my $ident = $row->{MONNAYEUR}) =~ s/\s+$//;
    my $e = $channels{$ident} ||= [0, {}, {}];
    $e->[0]++;
    $e->[1]{ $row->{CANAL} } = 1;
    $e->[2]{ $row->{HFUHIGHMAX} * 250 + $row->{HFUHIGHMIN} } = 1;
}
my %names;
my $v = table("Monnayeur.DBF");
for my $i (0 .. $v->last_record) {
    my $row = $v->get_record_as_hash($i);
    next if $row->{_DELETED};
    (my $ident = $row->{IDENT}) =~ s/\s+$//;
    (my $description = $row->{DESCRIPTIO}) =~ s/\s+$//;
    $names{$ident} = 1;
    my $e = $channels{$ident} || [0, {}, {}];
    print join("\t", $ident, $description, $row->{PRIX0} * 250 + $row->{PRIX1}, $e->[0],
               scalar(keys %{ $e->[1] }), join(",", sort { $a <=> $b } keys %{ $e->[2] })), "\n";
}
print "orphan\t$_\n" for sort grep { !$names{$_} } keys %channels;
