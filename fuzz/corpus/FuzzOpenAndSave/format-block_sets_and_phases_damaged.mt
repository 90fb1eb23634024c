blocks_set; blocks_A;
blocks_set; blocks_B; main;
blocks_set; blocks_C; main(m.group); extra;
blocks_set; blocks_D; zeta(z); main(m); Alpha(a); main(m2);
blocks_set; blocks_E; main "scg\0\blocks\x y.group"
phase; P0;
phase; P1; at(P2); blocks_P1;
phase; P2; random(P1); blocks_P2; clone_location;scg\0\air\;
phase; P3; azimuth(P1,0,1000); blocks_P3; ;;
phase; P4; fractal(P1,P2,1,2); blocks_P4; ;;
phase; P5; line(P1,P2,1,2,3); blocks_P5; ;;
phase; P6; nonsense(); blocks_P6; ;;
phase; P7; server_waypoint(); blocks_P7; ;;
phase; P8; server_waypoint(); blocks_P8; clone_location;f;
phase; P9; server_targetpos();
phase; P10; at(P1); blocks_P10; clone_location;f; extra; words;
phase; P11; AT(P1); blocks_P11; a;;
