# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_PatrolStart; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Contact; main(scg\0\blocks\air\intercept.group);
blocks_set; blocks_Spotting; main(scg\0\blocks\air\reconflight.group);
blocks_set; blocks_ReturnHome; main(scg\0\blocks\air\landing.group);

#
## geo params
#
phase; PatrolStart; server_setpos(); blocks_PatrolStart; ;;
phase; Contact; random(PatrolStart); blocks_Contact; random_pos;;
phase; Spotting; azimuth(PatrolStart,-1,1500.000000,90); blocks_Spotting; ;;
phase; ReturnHome; server_waypoint(); blocks_ReturnHome; land;;

#
## cases & switches
#
case; CaseContact(Contact,Spotting);

#
## gate links
#
tlink; PatrolStart(spotted); Contact(spotted);
olink; PatrolStart(OBJECT_plane); ReturnHome(OBJECT_plane);
tlink; Contact(done); ReturnHome(done);
tlink; Spotting(failed); ReturnHome(failed);

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
action; Spotting(ReconPlane,Model); set_model(unique random recon,random friendly);
action; Spotting(ReconPlane,Skin); set_skin($friendly_skin_3);
action; Spotting(ReconPlane,Country); set_country(friendly);
action; Spotting(ReconPlane,Altitude); set_altitude(Altitude,2400);if(clouds<3); 

#
## unlinks
#

#
## gui helpers
#
gui_helper; PatrolStart; 400; 400;""; ( ); 2;
gui_helper; Contact; 1200; 400;""; ( ); 4;
gui_helper; Spotting; 1200; 1300;
gui_helper; ReturnHome; 2000; 700;
gui_helper; CaseContact; 900; 850;
gui_helper; check; 1266; 572;Contact(in_radius)
gui_helper; Model; 466; 378;PatrolStart; (PatrolLead);
gui_helper; Skin; 466; 345;PatrolStart; (PatrolLead);
gui_helper; Country; 466; 312;PatrolStart; (PatrolLead);
gui_helper; Altitude; 466; 279;PatrolStart; (PatrolLead);
gui_helper; Model; 1266; 378;Contact; (Interceptor);
gui_helper; Skin; 1266; 345;Contact; (Interceptor);
gui_helper; Country; 1266; 312;Contact; (Interceptor);
gui_helper; Speed; 1266; 279;Contact; (Interceptor);
gui_helper; Model; 1266; 978;Spotting; (ReconPlane);
gui_helper; Skin; 1266; 945;Spotting; (ReconPlane);
gui_helper; Country; 1266; 912;Spotting; (ReconPlane);
gui_helper; Altitude; 1266; 879;Spotting; (ReconPlane);
