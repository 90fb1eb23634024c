blocks_set; blocks_Start; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Home; main(scg\0\blocks\air\landing.group);
phase; Start; server_setpos(); blocks_Start; ;;
phase; Home; server_waypoint(); blocks_Home; land;;
case; Both(Start,Home);
tlink; Start(done); Home(done);
gui_helper; Start; 0; 0;
gui_helper; Home; 0; 0;
gui_helper; Both; 300; 300;
