# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_P; main(scg\0\blocks\air\patrol.group);

#
## geo params
#
phase; P; server_setpos(); blocks_P; ;;

#
## cases & switches
#
case; K(P);
case; K2(P);
switch; 1; 0; 0; S(K,K);

#
## gate links
#

#
## conditions
#
check; P; in_radius(PRIMARY_LINK_PHASE,2000);
check; P; in_radius(PRIMARY_LINK_PHASE,3000);

#
## property actions
#
action; P(Plane,Skin); set_skin(b);
action; P(Plane,Skin); empty();
action; P(,Hand); <empty>();

#
## unlinks
#
unlink_nonplayer_input; blocks_P(start)
unlink_nonplayer_output; blocks_P(abort)

#
## gui helpers
#
gui_helper; P; 0; 0;
gui_helper; K; 1; 1;
gui_helper; K2; 0; 0;
gui_helper; S; 2; 2;
gui_helper; check; 3; 3;P(in_radius)
gui_helper; check; 4; 4;P(in_radius)
gui_helper; Skin; 5; 5;P; (Plane);
gui_helper; Hand; 0; 0;P; ();
gui_helper; unlink_P; 6; 6;
