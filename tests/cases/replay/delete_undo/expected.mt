# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_Sighting; main(scg\0\blocks\air\reconflight.group);
blocks_set; blocks_ReturnHome; main(scg\0\blocks\air\landing.group);
blocks_set; blocks_PatrolStart; main(scg\0\blocks\air\patrol.group);

#
## geo params
#
phase; Sighting; azimuth(PatrolStart,-1,1500.000000,90); blocks_Sighting; ;;
phase; ReturnHome; server_waypoint(); blocks_ReturnHome; land;;
phase; PatrolStart; server_setpos(); blocks_PatrolStart; ;;

#
## cases & switches
#
case; CaseContact(Sighting);

#
## gate links
#
tlink; Sighting(failed); ReturnHome(failed);
olink; PatrolStart(OBJECT_plane); ReturnHome(OBJECT_plane);

#
## conditions
#

#
## property actions
#
action; Sighting(ReconPlane,Model); set_model(unique random recon,random friendly);
action; Sighting(ReconPlane,Skin); set_skin($friendly_skin_3);
action; Sighting(ReconPlane,Country); set_country(friendly);
action; Sighting(ReconPlane,Altitude); set_altitude(Altitude,2400);if(clouds<3); 
action; PatrolStart(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk3);
action; PatrolStart(PatrolLead,Skin); set_skin($friendly_skin_1);
action; PatrolStart(PatrolLead,Country); set_country(friendly);
action; PatrolStart(PatrolLead,Altitude); set_altitude(Altitude,1500);if(alt<=2000); 

#
## unlinks
#

#
## gui helpers
#
gui_helper; Sighting; 450; 550;
gui_helper; ReturnHome; 600; 300;
gui_helper; PatrolStart; 100; 200;""; ( ); 2;
gui_helper; CaseContact; 300; 450;
gui_helper; Model; 516; 528;Sighting; (ReconPlane);
gui_helper; Skin; 516; 495;Sighting; (ReconPlane);
gui_helper; Country; 516; 462;Sighting; (ReconPlane);
gui_helper; Altitude; 516; 429;Sighting; (ReconPlane);
gui_helper; Model; 166; 178;PatrolStart; (PatrolLead);
gui_helper; Skin; 166; 145;PatrolStart; (PatrolLead);
gui_helper; Country; 166; 112;PatrolStart; (PatrolLead);
gui_helper; Altitude; 166; 79;PatrolStart; (PatrolLead);
