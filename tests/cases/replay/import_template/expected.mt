# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_PatrolStart; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Contact; main(scg\0\blocks\air\intercept.group);
blocks_set; blocks_Sighting; main(scg\0\blocks\air\reconflight.group);
blocks_set; blocks_ReturnHome; main(scg\0\blocks\air\landing.group);
blocks_set; blocks_PatrolStart_19; main(scg\0\blocks\air\patrol.group);
blocks_set; blocks_Contact_20; main(scg\0\blocks\air\intercept.group);
blocks_set; blocks_Sighting_21; main(scg\0\blocks\air\reconflight.group);
blocks_set; blocks_ReturnHome_22; main(scg\0\blocks\air\landing.group);
blocks_set; blocks_Lone; main(scg\0\blocks\air\patrol.group);

#
## geo params
#
phase; PatrolStart; server_setpos(); blocks_PatrolStart; ;;
phase; Contact; random(PatrolStart); blocks_Contact; random_pos;;
phase; Sighting; azimuth(PatrolStart,-1,1500.000000,90); blocks_Sighting; ;;
phase; ReturnHome; server_waypoint(); blocks_ReturnHome; land;;
phase; PatrolStart_19; server_setpos(); blocks_PatrolStart_19; ;;
phase; Contact_20; random(PatrolStart_19); blocks_Contact_20; random_pos;;
phase; Sighting_21; azimuth(PatrolStart_19,-1,1500.000000,90); blocks_Sighting_21; ;;
phase; ReturnHome_22; server_waypoint(); blocks_ReturnHome_22; land;;
phase; Lone; server_setpos(); blocks_Lone; ;;

#
## cases & switches
#
case; CaseContact(Contact,Sighting);
case; CaseContact_23(Contact_20,Sighting_21);

#
## gate links
#
tlink; PatrolStart(spotted); Contact(spotted);
olink; PatrolStart(OBJECT_plane); ReturnHome(OBJECT_plane);
tlink; Contact(done); ReturnHome(done);
tlink; Sighting(failed); ReturnHome(failed);
tlink; PatrolStart_19(spotted); Contact_20(spotted);
olink; PatrolStart_19(OBJECT_plane); ReturnHome_22(OBJECT_plane);
tlink; Contact_20(done); ReturnHome_22(done);
tlink; Sighting_21(failed); ReturnHome_22(failed);

#
## conditions
#
check; Contact; in_radius(PRIMARY_LINK_PHASE,2000);
check; Contact_20; in_radius(PRIMARY_LINK_PHASE,2000);

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
action; PatrolStart_19(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk3);
action; PatrolStart_19(PatrolLead,Skin); set_skin($friendly_skin_1);
action; PatrolStart_19(PatrolLead,Country); set_country(friendly);
action; PatrolStart_19(PatrolLead,Altitude); set_altitude(Altitude,1500);if(alt<=2000); 
action; Contact_20(Interceptor,Model); set_model(enemy model 2,server decides);
action; Contact_20(Interceptor,Skin); set_skin($enemy_skin_1);
action; Contact_20(Interceptor,Country); set_country(enemy);
action; Contact_20(Interceptor,Speed); set_speed(Speed,160);
action; Sighting_21(ReconPlane,Model); set_model(unique random recon,random friendly);
action; Sighting_21(ReconPlane,Skin); set_skin($friendly_skin_3);
action; Sighting_21(ReconPlane,Country); set_country(friendly);
action; Sighting_21(ReconPlane,Altitude); set_altitude(Altitude,2400);if(clouds<3); 

#
## unlinks
#

#
## gui helpers
#
gui_helper; PatrolStart; 100; 200;""; ( ); 2;
gui_helper; Contact; 450; 200;""; ( ); 4;
gui_helper; Sighting; 450; 550;
gui_helper; ReturnHome; 600; 300;
gui_helper; PatrolStart_19; 0; 361;""; ( ); 2;
gui_helper; Contact_20; 800; 361;""; ( ); 4;
gui_helper; Sighting_21; 800; 961;
gui_helper; ReturnHome_22; 1600; 661;
gui_helper; Lone; 300; 700;
gui_helper; CaseContact; 300; 450;
gui_helper; CaseContact_23; 500; 811;
gui_helper; check; 516; 372;Contact(in_radius)
gui_helper; check; 866; 533;Contact_20(in_radius)
gui_helper; Model; 166; 178;PatrolStart; (PatrolLead);
gui_helper; Skin; 166; 145;PatrolStart; (PatrolLead);
gui_helper; Country; 166; 112;PatrolStart; (PatrolLead);
gui_helper; Altitude; 166; 79;PatrolStart; (PatrolLead);
gui_helper; Model; 516; 178;Contact; (Interceptor);
gui_helper; Skin; 516; 145;Contact; (Interceptor);
gui_helper; Country; 516; 112;Contact; (Interceptor);
gui_helper; Speed; 516; 79;Contact; (Interceptor);
gui_helper; Model; 516; 528;Sighting; (ReconPlane);
gui_helper; Skin; 516; 495;Sighting; (ReconPlane);
gui_helper; Country; 516; 462;Sighting; (ReconPlane);
gui_helper; Altitude; 516; 429;Sighting; (ReconPlane);
gui_helper; Model; 66; 339;PatrolStart_19; (PatrolLead);
gui_helper; Skin; 66; 306;PatrolStart_19; (PatrolLead);
gui_helper; Country; 66; 273;PatrolStart_19; (PatrolLead);
gui_helper; Altitude; 66; 240;PatrolStart_19; (PatrolLead);
gui_helper; Model; 866; 339;Contact_20; (Interceptor);
gui_helper; Skin; 866; 306;Contact_20; (Interceptor);
gui_helper; Country; 866; 273;Contact_20; (Interceptor);
gui_helper; Speed; 866; 240;Contact_20; (Interceptor);
gui_helper; Model; 866; 939;Sighting_21; (ReconPlane);
gui_helper; Skin; 866; 906;Sighting_21; (ReconPlane);
gui_helper; Country; 866; 873;Sighting_21; (ReconPlane);
gui_helper; Altitude; 866; 840;Sighting_21; (ReconPlane);
