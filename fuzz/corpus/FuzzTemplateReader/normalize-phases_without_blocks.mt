# A block set is used up by the first phase that names it; a block file that
# is missing is reported each time it is named; a phase left without blocks
# is dropped, and whatever names it loses that reference.
blocks_set; blocks_A; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_C; main(scg\0\blocks\air\nothere.group);
blocks_set; blocks_D; extra_a(scg\0\blocks\air\nothere.group); main(scg\0\blocks\air\landing.group);
phase; A; server_setpos(); blocks_A; ;;
phase; Shared; server_setpos(); blocks_A; ;;
phase; C; server_setpos(); blocks_C; ;;
phase; D; at(C); blocks_D; area;;
phase; E; server_setpos(); blocks_missing; ;;
case; K(A,C,A,Shared);
check; C; squad(12,20.07.1917);
tlink; A(spotted); C(start);
gui_helper; A; 10; 20;""; ( ); 2;
gui_helper; C; 30; 40;""; ( ); 5;
gui_helper; D; 50; 60;
gui_helper; K; 70; 80;
