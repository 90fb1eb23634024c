# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_C; main(m.group);
blocks_set; blocks_D; Alpha(a); main(m2); zeta(z);
blocks_set; blocks_E; main(scg\0\blocks\x y.group);

#
## geo params
#
phase; P1; at(); ; ;;
phase; P2; random(P1); blocks_P2; clone_location;scg\0\air\;
phase; P3; azimuth(); ; ;;
phase; P4; fractal(); ; ;;
phase; P5; line(P1,P2,1,2,3); blocks_P5; ;;
phase; P6; server_setpos(); blocks_P6; ;;
phase; P7; server_waypoint(); ; ;;
phase; P8; server_waypoint(); blocks_P8; clone_location;f;
phase; P9; server_targetpos(); ; ;;
phase; P10; at(P1); blocks_P10; clone_location;f;
phase; P11; server_setpos(); P1; ;blocks_P11;

#
## cases & switches
#

#
## gate links
#

#
## conditions
#

#
## property actions
#

#
## unlinks
#

#
## gui helpers
#
