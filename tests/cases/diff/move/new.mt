# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_PatrolStart; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Contact; main(scg\0\blocks\air\intercept.group);
blocks_set; blocks_Sighting; main(scg\0\blocks\air\reconflight.group);
blocks_set; blocks_ReturnHome; main(scg\0\blocks\air\landing.group);

#
## geo params
#
phase; PatrolStart; server_setpos(); blocks_PatrolStart; ;;
phase; Contact; random(PatrolStart); blocks_Contact; random_pos;;
phase; Sighting; azimuth(PatrolStart,-1,1500.000000,90); blocks_Sighting; ;;
phase; ReturnHome; server_waypoint(); blocks_ReturnHome; land;;

#
## cases & switches
#
case; CaseContact(Contact,Sighting);

#
## gate links
#
tlink; PatrolStart(spotted); Contact(spotted);
olink; PatrolStart(OBJECT_plane); ReturnHome(OBJECT_plane);
tlink; Contact(done); ReturnHome(done);
tlink; Sighting(failed); ReturnHome(failed);

#
## conditions
#
check; Contact; in_radius(PRIMARY_LINK_PHASE,2000);

#
## property actions
#
action; PatrolStart(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk3);
action; PatrolStart(PatrolLead,Skin); set_skin($friendly_skin_1);
action; PatrolStart(PatrolLead,Country); set_country(friendly);
action; PatrolStart(PatrolLead,Altitude); set_altitude(Altitude,1500);if(alt<=2000); 
action; Contact(Interceptor,Model); set_model(enemy model 2,server decides);
action; Contact(Interceptor,Skin); set_skin($enemy_skin_1);
action; Contact(Interceptor,Country); set_country(enemy);
action; Contact(Interceptor,Speed); set_speed(Speed,160);
action; Sighting(ReconPlane,Model); set_model(unique random recon,random friendly);
action; Sighting(ReconPlane,Skin); set_skin($friendly_skin_3);
action; Sighting(ReconPlane,Country); set_country(friendly);
action; Sighting(ReconPlane,Altitude); set_altitude(Altitude,2400);if(clouds<3); 

#
## unlinks
#

#
## gui helpers
#
gui_helper; PatrolStart; 500; 400;""; ( ); 2;
gui_helper; Contact; 1400; 350;""; ( ); 4;
gui_helper; Sighting; 1200; 1100;
gui_helper; ReturnHome; 2000; 700;
gui_helper; CaseContact; 900; 850;
gui_helper; check; 1466; 522;Contact(in_radius)
gui_helper; Model; 566; 378;PatrolStart; (PatrolLead);
gui_helper; Skin; 566; 345;PatrolStart; (PatrolLead);
gui_helper; Country; 566; 312;PatrolStart; (PatrolLead);
gui_helper; Altitude; 566; 279;PatrolStart; (PatrolLead);
gui_helper; Model; 1466; 328;Contact; (Interceptor);
gui_helper; Skin; 1466; 295;Contact; (Interceptor);
gui_helper; Country; 1466; 262;Contact; (Interceptor);
gui_helper; Speed; 1466; 229;Contact; (Interceptor);
gui_helper; Model; 1266; 1078;Sighting; (ReconPlane);
gui_helper; Skin; 1266; 1045;Sighting; (ReconPlane);
gui_helper; Country; 1266; 1012;Sighting; (ReconPlane);
gui_helper; Altitude; 1266; 979;Sighting; (ReconPlane);
