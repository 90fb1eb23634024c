# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_Patrol; main(scg\0\blocks\air\patrol.group); patrol_high_a(scg\0\blocks\air\patrol_high.group); transport_run_a(scg\0\blocks\air\transport_run.group);

#
## geo params
#
phase; Patrol; server_setpos(); blocks_Patrol; ;;

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
action; Patrol(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk3);
action; Patrol(PatrolLead,Skin); set_skin($friendly_skin_1);
action; Patrol(PatrolLead,Country); set_country(friendly);
action; Patrol(PatrolLead,Altitude); set_altitude(Altitude,1500);

#
## unlinks
#

#
## gui helpers
#
gui_helper; Patrol; 400; 400;""; ( ); 2;
gui_helper; Model; 0; 0;Patrol; (PatrolLead);
gui_helper; Skin; 0; 0;Patrol; (PatrolLead);
gui_helper; Country; 0; 0;Patrol; (PatrolLead);
gui_helper; Altitude; 0; 0;Patrol; (PatrolLead);
