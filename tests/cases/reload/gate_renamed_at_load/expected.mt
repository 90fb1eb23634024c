# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_Patrol; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Home; main(scg\0\blocks\air\landing.group);

#
## geo params
#
phase; Patrol; server_setpos(); blocks_Patrol; ;;
phase; Home; server_waypoint(); blocks_Home; land;;

#
## cases & switches
#

#
## gate links
#
tlink; Patrol(done); Home(done);

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
gui_helper; Patrol; 400; 400;
gui_helper; Home; 1200; 400;
