# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_P1; escort(scg\0\blocks\air\escort.group); main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_P2; main(scg\0\blocks\ground\convoy.group);
blocks_set; blocks_P3; main(scg\0\blocks\sea\ships.group);
blocks_set; blocks_P4; main(scg\0\blocks\air\intercept.group);
blocks_set; blocks_P5; main(scg\0\blocks\air\cap.group);
blocks_set; blocks_P6; main(scg\0\blocks\server\spawn.group);
blocks_set; blocks_P7; main(scg\0\blocks\server\route.group);
blocks_set; blocks_P8; main(scg\0\blocks\server\target.group);

#
## geo params
#
phase; P1; at(P2); blocks_P1; clone_location;;
phase; P2; azimuth(P1,0,1000,5000); blocks_P2; ;;
phase; P3; fractal(P1,P2,1,2,3); blocks_P3; ;scg\0\blocks\sea\;
phase; P4; line(P1,P3,10,20,30); blocks_P4; ;;
phase; P5; random(P1); blocks_P5; new_location;;
phase; P6; server_setpos(); blocks_P6; ;;
phase; P7; server_waypoint(); blocks_P7; clone_location;;
phase; P8; server_targetpos(); blocks_P8; ;;

#
## cases & switches
#
case; C1(P1,P2);
case; C2(P3);
switch; 1; 0; 2; S1(C1,C2);
switch; -1; 3; 0; S2(C2);

#
## gate links
#
tlink; P1(out_1); P2(in_1);
olink; P2(obj); P3(target);
tlink; P3(out_2); P4(in_1);

#
## conditions
#
check; P1; squad(1943-05-12,3);
check; P2; location_type(city,airfield,port);
check; P3; coalition(1);
check; P4; range(PRIMARY_LINK_PHASE,1000,5000);
check; P5; in_radius(PRIMARY_LINK_PHASE,);
check; P6; in_sector(PRIMARY_LINK_PHASE,3);
check; P7; free();
check; P8; in_radius(PRIMARY_LINK_PHASE,2000);

#
## property actions
#
action; P1(OBJECT,Model); set_model($model);if(coalition==1); 
action; P1(OBJECT,Model); set_model(b);
action; P2(,Country); set_country(2);
action; P3(PLANE,Skin); set_skin(a,b);if(x==1); if(y==2); 

#
## unlinks
#
unlink_nonplayer_input; blocks_P1(in_1,in_2)
unlink_nonplayer_output; blocks_P2(out_1)

#
## gui helpers
#
gui_helper; P1; 100; 200;""; ( ); 3;
gui_helper; P2; -40; 0;
gui_helper; C1; 300; 200;
gui_helper; S1; 300; 260;
gui_helper; check; 100; 250;P1(squad)
gui_helper; Model; 180; 200;P1; (OBJECT);
gui_helper; Country; 180; 220;P2; ();
gui_helper; unlink_P1; 60; 200;
