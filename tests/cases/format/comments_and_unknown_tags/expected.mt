# tarnwick Ostrel mission template file [text dump]

#
## block sets
#

#
## geo params
#

#
## cases & switches
#
case; C1(P1,P2);

#
## gate links
#
tlink; P1(out_1); P2(in_1);

#
## conditions
#

#
## property actions
#

#
## unlinks
#

#
## gui helpers
#
