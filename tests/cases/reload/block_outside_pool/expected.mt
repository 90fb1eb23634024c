# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_Guard; main(scg\0\blocks\ground\bridge_guard.group);
blocks_set; blocks_Tower; main(scg\0\extra\watchtower.group);

#
## geo params
#
phase; Guard; server_setpos(); blocks_Guard; ;;
phase; Tower; random(Guard); blocks_Tower; random_pos;;

#
## cases & switches
#

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
gui_helper; Guard; 400; 400;
gui_helper; Tower; 1200; 400;
