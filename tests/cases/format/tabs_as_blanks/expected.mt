# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_P1; main(blocks\a.group);

#
## geo params
#
phase; P1; random(P1); blocks_P1; clone_location;;

#
## cases & switches
#
case; C1(P1);

#
## gate links
#

#
## conditions
#

#
## property actions
#
action; P1(Plane,Skin); set_skin(abc,x);

#
## unlinks
#

#
## gui helpers
#
gui_helper; P1; 5; 6;
