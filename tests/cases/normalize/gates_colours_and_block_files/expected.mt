# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_Start; main(scg\0\blocks\AIR\Patrol.group);
blocks_set; blocks_Land; a_a(scg\0\blocks\air\landing.group); main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Third; main(scg\0\blocks\air\patrol.group);

#
## geo params
#
phase; Start; server_setpos(); blocks_Start; ;;
phase; Land; line(Start,<EMPTY>,1,2,3); blocks_Land; ;area;
phase; Third; random(Land); blocks_Third; area;;

#
## cases & switches
#

#
## gate links
#
tlink; Start(spotted); Land(done);

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
gui_helper; Start; -100; -50;""; ( ); 6;
gui_helper; Land; 0; 0;""; ( ); 6;
gui_helper; Third; 10; 20;
