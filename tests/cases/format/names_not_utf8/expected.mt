# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_Pÿ1; main(blocks\a.group);

#
## geo params
#
phase; Pÿ1; random(Pÿ1); blocks_Pÿ1; clone_location;;

#
## cases & switches
#
case; OvÀ¯erlong(Pÿ1);

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
gui_helper; Pÿ1; 5; 6;
