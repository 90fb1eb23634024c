# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_P1; main(scg\0\blocks\air\patrol.group);

#
## geo params
#
phase; P1; server_setpos(); blocks_P1; ;;

#
## cases & switches
#

#
## gate links
#

#
## conditions
#
check; P1; coalition(e);
check; P1; coalition(x);

#
## property actions
#
action; P1(O,N); f(g(1,2);
action; P1(O,M); h(k(3);if(x);

#
## unlinks
#

#
## gui helpers
#
