# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_Patrol; main(scg\0\blocks\air\patrol.group);

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
action; Patrol(PatrolLead,Speed); <empty>();
action; Patrol(PatrolWing,Model); <empty>();
action; Patrol(PatrolWing,Skin); <empty>();

#
## unlinks
#

#
## gui helpers
#
gui_helper; Patrol; 400; 400;""; ( ); 2;
gui_helper; Model; 466; 378;Patrol; (PatrolLead);
gui_helper; Skin; 466; 345;Patrol; (PatrolLead);
gui_helper; Country; 466; 312;Patrol; (PatrolLead);
gui_helper; Altitude; 466; 279;Patrol; (PatrolLead);
gui_helper; Speed; 800; 330;Patrol; (PatrolLead);
gui_helper; Model; 800; 490;Patrol; (PatrolWing);
gui_helper; Skin; 800; 530;Patrol; (PatrolWing);
