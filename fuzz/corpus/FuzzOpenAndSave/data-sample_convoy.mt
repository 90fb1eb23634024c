# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_TrainStart; main(scg\0\blocks\ground\train_run.group);
blocks_set; blocks_RoadColumn; main(scg\0\blocks\ground\convoyroute.group); route_fast_a(scg\0\blocks\ground\route_fast.group);
blocks_set; blocks_FerryPoint; main(scg\0\blocks\naval\ferrycrossing.group);
blocks_set; blocks_Barges; main(scg\0\blocks\naval\barge_group.group);
blocks_set; blocks_Camp; main(scg\0\blocks\ground\field_camp.group);
blocks_set; blocks_BridgePost; main(scg\0\blocks\ground\bridge_guard.group);
blocks_set; blocks_Depot; main(scg\0\blocks\ground\depots\ammodepot.group);
blocks_set; blocks_Mines; main(scg\0\blocks\naval\minefield.group);
blocks_set; blocks_Guns; main(scg\0\blocks\ground\artillery_line.group);

#
## geo params
#
phase; TrainStart; server_setpos(); blocks_TrainStart; ;;
phase; RoadColumn; at(TrainStart); blocks_RoadColumn; clone_location;;
phase; FerryPoint; line(RoadColumn,TrainStart,-1,600,20); blocks_FerryPoint; ;;
phase; Barges; server_targetpos(); blocks_Barges; ;scg\0\blocks\naval;
phase; Camp; azimuth(TrainStart,-3,0,0); blocks_Camp; ;;
phase; BridgePost; fractal(RoadColumn,<EMPTY>,25,40,left); blocks_BridgePost; ;;
phase; Depot; random(RoadColumn); blocks_Depot; along_range;;
phase; Mines; server_waypoint(); blocks_Mines; in_2;;
phase; Guns; random(Camp); blocks_Guns; rear_board;;

#
## cases & switches
#
case; CaseCrossing(FerryPoint,BridgePost);
case; CaseSupply(Depot);
switch; 0; 7; 1; SwitchRoute(CaseCrossing,CaseSupply);

#
## gate links
#
tlink; TrainStart(arrived); RoadColumn(start);
olink; TrainStart(OBJECT_convoy); FerryPoint(OBJECT_convoy);
olink; RoadColumn(OBJECT_convoy); BridgePost(OBJECT_convoy);
olink; RoadColumn(OBJECT_convoy); Depot(OBJECT_convoy);
tlink; RoadColumn(arrived); Depot(start);
tlink; FerryPoint(arrived); Barges(start);
tlink; BridgePost(failed); Barges(abort);
tlink; Barges(arrived); Mines(start);
olink; Camp(OBJECT_target); Guns(OBJECT_target);
tlink; Camp(done); Guns(start);

#
## conditions
#
check; TrainStart; squad(7,$date);
check; Camp; location_type(GroundBase,ForwardBase);
check; Depot; in_sector(PRIMARY_LINK_PHASE,45);
check; Depot; location_type(GroundObjective,RailwayStation,SupplyDump);
check; Guns; range(PRIMARY_LINK_PHASE,closest_outof,1000);
check; Barges; free();
check; Mines; coalition(fen);
check; FerryPoint; squad($playersquad,12.06.1918);

#
## property actions
#
action; TrainStart(Locomotive,Model); set_model(locomotive,ally:locomotive:ironmare_0);
action; TrainStart(Locomotive,Country); set_country(friendly);
action; TrainStart(Locomotive,Speed); set_speed(Speed,40);
action; RoadColumn(ConvoyLead,Model); set_model(lorry,ally:lorry:haulwain_5t);
action; RoadColumn(ConvoyLead,Country); set_country(friendly);
action; RoadColumn(ConvoyLead,Speed); set_speed(Speed,30);
action; RoadColumn(ConvoyTail,Model); set_model(lorry,server decides);
action; RoadColumn(ConvoyTail,Country); set_country(friendly);
action; RoadColumn(,Counter); set_counter(Counter,4);
action; FerryPoint(Ferry,Model); set_model(boat,ally:boat:barge_lumen);
action; FerryPoint(Ferry,Country); set_country(friendly);
action; Barges(BargeLead,Model); set_model(friendly model 3,server decides);
action; Barges(BargeLead,Country); set_country(from_server);
action; Barges(BargeLead,Speed); set_speed(Speed,9);
action; Barges(,Spare); <empty>();
action; Depot(DepotGuard,Country); set_country(friendly);
action; Depot(,Weather); set_weather(fog);if(hour<8); 
action; Guns(Battery,Model); set_model(gun,ally:gun:fieldpiece_c);
action; Guns(Battery,Country); set_country(friendly);
action; Mines(,Delay); spawn_delay(120,120);if(tide!=0); 

#
## unlinks
#
unlink_nonplayer_input; blocks_FerryPoint(start)
unlink_nonplayer_output; blocks_FerryPoint(arrived,failed)
unlink_nonplayer_input; blocks_Mines(start)

#
## gui helpers
#
gui_helper; TrainStart; 400; 400;""; ( ); 3;
gui_helper; RoadColumn; 1200; 400;""; ( ); 2;
gui_helper; FerryPoint; 2000; 400;
gui_helper; Barges; 2800; 400;""; ( ); 6;
gui_helper; Camp; 400; 1000;
gui_helper; BridgePost; 1200; 1000;
gui_helper; Depot; 2000; 1000;""; ( ); 5;
gui_helper; Mines; 2800; 1000;
gui_helper; Guns; 400; 1600;""; ( ); 1;
gui_helper; CaseCrossing; 1600; 1700;
gui_helper; CaseSupply; 2000; 1700;
gui_helper; SwitchRoute; 1800; 2000;
gui_helper; check; 466; 572;TrainStart(squad)
gui_helper; check; 466; 1172;Camp(location_type)
gui_helper; check; 2066; 1172;Depot(in_sector)
gui_helper; check; 2066; 1205;Depot(location_type)
gui_helper; check; 466; 1772;Guns(range)
gui_helper; check; 2866; 572;Barges(free)
gui_helper; check; 2866; 1172;Mines(coalition)
gui_helper; check; 2066; 572;FerryPoint(squad)
gui_helper; Model; 466; 378;TrainStart; (Locomotive);
gui_helper; Country; 466; 345;TrainStart; (Locomotive);
gui_helper; Speed; 466; 312;TrainStart; (Locomotive);
gui_helper; Model; 1266; 378;RoadColumn; (ConvoyLead);
gui_helper; Country; 1266; 345;RoadColumn; (ConvoyLead);
gui_helper; Speed; 1266; 312;RoadColumn; (ConvoyLead);
gui_helper; Model; 1266; 279;RoadColumn; (ConvoyTail);
gui_helper; Country; 1266; 246;RoadColumn; (ConvoyTail);
gui_helper; Counter; 1600; 450;RoadColumn; ();
gui_helper; Model; 2066; 378;FerryPoint; (Ferry);
gui_helper; Country; 2066; 345;FerryPoint; (Ferry);
gui_helper; Model; 2866; 378;Barges; (BargeLead);
gui_helper; Country; 2866; 345;Barges; (BargeLead);
gui_helper; Speed; 2866; 312;Barges; (BargeLead);
gui_helper; Spare; 3200; 370;Barges; ();
gui_helper; Country; 2066; 978;Depot; (DepotGuard);
gui_helper; Weather; 2400; 890;Depot; ();
gui_helper; Model; 466; 1578;Guns; (Battery);
gui_helper; Country; 466; 1545;Guns; (Battery);
gui_helper; Delay; 3200; 850;Mines; ();
gui_helper; unlink_FerryPoint; 1750; 250;
gui_helper; unlink_Mines; 2550; 850;
