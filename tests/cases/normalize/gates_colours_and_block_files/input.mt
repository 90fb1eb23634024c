# A phase takes its gates from the block under its first key, which here
# sorts before "main"; a phase without a gui_helper keeps the colour of the
# phase before it; a block reference that the pool does not know is read
# from its file on demand. A colour beyond the table (1 to 6) is dropped.
blocks_set; blocks_Start; main(scg\0\blocks\AIR\Patrol.group);
blocks_set; blocks_Land; a_a(scg\0\blocks\air\landing.group); main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Third; main(scg\0\blocks\air\patrol.group);
phase; Start; server_setpos(); blocks_Start; ;;
phase; Land; line(Start,<EMPTY>,1,2,3); blocks_Land; ;area;
phase; Third; random(Land); blocks_Third; area;;
tlink; Start(spotted); Land(done);
tlink; Start(spotted); Land(abort);
tlink; Land(done); Third(start);
gui_helper; Start; -100; -50;""; ( ); 6;
gui_helper; Third; 10; 20;""; ( ); 7;
