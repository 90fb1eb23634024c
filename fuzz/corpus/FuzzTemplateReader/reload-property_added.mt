# The block gained a property of its object and a second object. Each new
# property gets an action 400 to the right of the phase, at a height that its
# place among all the phase's properties gives (Speed is the third property,
# the second object's come seventh and eighth); "Script" never gets one.
blocks_set; blocks_Patrol; main(scg\0\blocks\air\patrol.group);
phase; Patrol; server_setpos(); blocks_Patrol; ;;
action; Patrol(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk3);
action; Patrol(PatrolLead,Skin); set_skin($friendly_skin_1);
action; Patrol(PatrolLead,Country); set_country(friendly);
action; Patrol(PatrolLead,Altitude); set_altitude(Altitude,1500);
gui_helper; Patrol; 400; 400;""; ( ); 2;
gui_helper; Model; 466; 378;Patrol; (PatrolLead);
gui_helper; Skin; 466; 345;Patrol; (PatrolLead);
gui_helper; Country; 466; 312;Patrol; (PatrolLead);
gui_helper; Altitude; 466; 279;Patrol; (PatrolLead);
