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

#
## gate links
#

#
## conditions
#
check; P1; squad();
check; P1; squad(1943-05-12,3);
check; P2; location_type(city,airfield,port,river);
check; P3; coalition(1);
check; P4; range();
check; P4; range(PRIMARY_LINK_PHASE,1000,5000);
check; P5; in_radius(PRIMARY_LINK_PHASE,);
check; P5; in_radius(PRIMARY_LINK_PHASE,5000);
check; P6; in_sector(PRIMARY_LINK_PHASE,3);
check; P7; free();
check; P8; free();
check; P9; in_radius();

#
## property actions
#

#
## unlinks
#

#
## gui helpers
#
