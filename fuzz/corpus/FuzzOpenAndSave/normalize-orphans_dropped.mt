# Checks, actions, unlinks, case and switch members that name nothing are
# dropped without a word; so are gui_helpers that nothing takes.
blocks_set; blocks_P; main(scg\0\blocks\air\patrol.group);
phase; P; server_setpos(); blocks_P; ;;
case; K(P,Nobody);
case; K2(P);
switch; 1; 0; 0; S(K,Nothing,K);
check; Nobody; range(PRIMARY_LINK_PHASE,closest_outof,500);
check; P; in_radius(SomethingElse,2000);
check; P; in_radius(SomethingElse,3000);
action; Nobody(Plane,Skin); set_skin(a);
action; P(Plane,Skin); set_skin(b);
action; P(Plane,Skin); empty();
action; P(,Hand); <empty>();
unlink_nonplayer_input; blocks_Nobody(start)
unlink_nonplayer_output; blocks_P(abort)
unlink_nonplayer_input; blocks_P(start)
gui_helper; P; 0; 0;""; ( ); 9;
gui_helper; K; 1; 1;
gui_helper; S; 2; 2;
gui_helper; check; 3; 3;P(in_radius)
gui_helper; check; 4; 4;P(in_radius)
gui_helper; Skin; 5; 5;P; (Plane);
gui_helper; unlink_P; 6; 6;
gui_helper; Unused; 7; 7;
