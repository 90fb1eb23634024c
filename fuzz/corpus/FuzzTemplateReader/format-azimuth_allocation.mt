phase; P1; azimuth(<EMPTY>,0,1000,5000); blocks_P1; clone_location;;
phase; P2; azimuth(P1,0,1000,5000); blocks_P2; clone_location;scg\0\folder\;
phase; P3; fractal(P1,P2,1,2,3); blocks_P3; new_location;;
phase; P4; line(P1,P2,1,2,3); blocks_P4; ;scg\0\f\;
phase; P5; server_setpos(); blocks_P5; clone_location;;
phase; P6; server_targetpos(); blocks_P6; clone_location;f;
phase; P7; at(P1); blocks_P7; clone_location;f;
phase; P8; server_waypoint(); blocks_P8; clone_location;f;
