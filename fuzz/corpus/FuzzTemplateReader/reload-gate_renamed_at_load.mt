# The block renamed its output "spotted" to "sighted". Read anew, the template
# already loses the link of the old gate at loading, with the loader's
# messages, so the reload has nothing left to remove. (The editor's reload of
# an open template removes such a link and logs it.)
blocks_set; blocks_Patrol; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Home; main(scg\0\blocks\air\landing.group);
phase; Patrol; server_setpos(); blocks_Patrol; ;;
phase; Home; server_waypoint(); blocks_Home; land;;
tlink; Patrol(spotted); Home(start);
tlink; Patrol(done); Home(done);
gui_helper; Patrol; 400; 400;
gui_helper; Home; 1200; 400;
