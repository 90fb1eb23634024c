# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_T; main(scg\0\blocks\air\patrol.group);

#
## geo params
#
phase; T; random(<EMPTY>); blocks_T; random_pos;;

#
## cases & switches
#

#
## gate links
#

#
## conditions
#
check; T; range(PRIMARY_LINK_PHASE);
check; T; in_radius(PRIMARY_LINK_PHASE,500);
check; T; in_sector(PRIMARY_LINK_PHASE);
check; T; coalition(1);

#
## property actions
#

#
## unlinks
#

#
## gui helpers
#
gui_helper; T; 0; 0;
gui_helper; check; 0; 0;T(range)
gui_helper; check; 0; 0;T(in_radius)
gui_helper; check; 0; 0;T(in_sector)
gui_helper; check; 6; 0;T(coalition)
