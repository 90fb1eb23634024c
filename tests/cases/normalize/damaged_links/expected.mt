# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_A; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_B; main(scg\0\blocks\air\intercept.group);

#
## geo params
#
phase; A; server_setpos(); blocks_A; ;;
phase; B; random(A); blocks_B; random_pos;;

#
## cases & switches
#

#
## gate links
#
tlink; A(spotted); B(spotted);
olink; B(done); A(OBJECT_target);

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
gui_helper; A; 100; 100;
gui_helper; B; 500; 100;""; ( ); 3;
