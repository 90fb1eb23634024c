# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_A; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_D; main(scg\0\blocks\air\landing.group);

#
## geo params
#
phase; A; server_setpos(); blocks_A; ;;
phase; D; at(<EMPTY>); blocks_D; area;;

#
## cases & switches
#
case; K(A);

#
## gate links
#

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
gui_helper; A; 10; 20;""; ( ); 2;
gui_helper; D; 50; 60;
gui_helper; K; 70; 80;
