# Two additional blocks: patrol_high has the gates and objects of the first
# block (in another order, which does not matter) and stays silent;
# transport_run has other ones and is reported, but stays in the phase.
blocks_set; blocks_Patrol; main(scg\0\blocks\air\patrol.group); patrol_high_a(scg\0\blocks\air\patrol_high.group); transport_run_a(scg\0\blocks\air\transport_run.group);
phase; Patrol; server_setpos(); blocks_Patrol; ;;
action; Patrol(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk3);
action; Patrol(PatrolLead,Skin); set_skin($friendly_skin_1);
action; Patrol(PatrolLead,Country); set_country(friendly);
action; Patrol(PatrolLead,Altitude); set_altitude(Altitude,1500);
gui_helper; Patrol; 400; 400;""; ( ); 2;
