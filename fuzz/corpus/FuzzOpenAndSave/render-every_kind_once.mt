# Every kind of object once, for the picture test of loomwright-tool render.

blocks_set; blocks_Start; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Meet; main(scg\0\blocks\air\intercept.group);
blocks_set; blocks_Home; main(scg\0\blocks\air\landing.group);

phase; Start; server_setpos(); blocks_Start; ;;
phase; Meet; azimuth(Start,-1,1500.000000,90); blocks_Meet; ;;
phase; Home; line(Meet,<EMPTY>,30,500,12); blocks_Home; ;;

case; CaseMeet(Meet,Home);
switch; 1; 0; 0; SwitchOne(CaseMeet);

tlink; Start(spotted); Meet(spotted);
olink; Start(OBJECT_plane); Home(OBJECT_plane);
tlink; Meet(done); Home(done);

check; Meet; in_radius(PRIMARY_LINK_PHASE,2000);
action; Meet(Interceptor,Speed); set_speed(Speed,160);
unlink_nonplayer_input; blocks_Home(failed)

gui_helper; Start; 0; 0;""; ( ); 2;
gui_helper; Meet; 700; 0;""; ( ); 4;
gui_helper; Home; 700; 450;
gui_helper; CaseMeet; 350; 400;
gui_helper; SwitchOne; 150; 560;
gui_helper; check; 766; 172;Meet(in_radius)
gui_helper; Speed; 766; -22;Meet; (Interceptor);
gui_helper; unlink_Home; 450; 650;
