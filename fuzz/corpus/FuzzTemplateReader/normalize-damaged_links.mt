# Links with a missing source, a missing destination, an unknown gate and a
# phase linked to itself: each shows its cause and then the general message.
blocks_set; blocks_A; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_B; main(scg\0\blocks\air\intercept.group);
phase; A; server_setpos(); blocks_A; ;;
phase; B; random(A); blocks_B; random_pos;;
tlink; A(spotted); B(spotted);
tlink; Ghost(spotted); B(spotted);
tlink; A(spotted); Ghost(start);
tlink; A(nosuchgate); B(spotted);
tlink; A(spotted); A(start);
olink; B(done); A(OBJECT_target);
gui_helper; A; 100; 100;
gui_helper; B; 500; 100;""; ( ); 3;
