# The block lost the properties Country and Altitude. The action of Country
# goes; the action of Altitude moves into its place in the document and is
# not looked at again in this run, so it stays until the next reload. The
# action made by hand (no object name) is never touched.
blocks_set; blocks_Patrol; main(scg\0\blocks\air\patrol.group);
phase; Patrol; server_setpos(); blocks_Patrol; ;;
action; Patrol(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk3);
action; Patrol(PatrolLead,Skin); set_skin($friendly_skin_1);
action; Patrol(PatrolLead,Country); set_country(friendly);
action; Patrol(PatrolLead,Altitude); set_altitude(Altitude,1500);
action; Patrol(,Briefing); set_altitude(Altitude,900);
gui_helper; Patrol; 400; 400;""; ( ); 2;
gui_helper; Model; 466; 378;Patrol; (PatrolLead);
gui_helper; Skin; 466; 345;Patrol; (PatrolLead);
gui_helper; Country; 466; 312;Patrol; (PatrolLead);
gui_helper; Altitude; 466; 279;Patrol; (PatrolLead);
gui_helper; Briefing; 800; 250;Patrol; ();
