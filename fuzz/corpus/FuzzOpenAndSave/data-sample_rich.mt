# tarnwick Ostrel mission template file [text dump]

#
## block sets
#
blocks_set; blocks_PlayerStart; main(scg\0\blocks\air\playerflight.group);
blocks_set; blocks_WaypointNorth; main(scg\0\blocks\air\patrol.group); patrol_high_a(scg\0\blocks\air\patrol_high.group); patrol_low_b(scg\0\blocks\air\patrol_low.group);
blocks_set; blocks_ReconSweep; main(scg\0\blocks\air\reconflight.group);
blocks_set; blocks_FrontSector; main(scg\0\blocks\ground\front_sector.group);
blocks_set; blocks_BomberRaid; main(scg\0\blocks\air\bomber_raid.group);
blocks_set; blocks_EscortLeg; main(scg\0\blocks\air\escort.group);
blocks_set; blocks_AAPositions; main(scg\0\blocks\ground\aa_battery.group);
blocks_set; blocks_Interceptors; main(scg\0\blocks\air\intercept.group);
blocks_set; blocks_AceHunters; main(scg\0\blocks\air\ace_hunt.group);
blocks_set; blocks_HomeLanding; main(scg\0\blocks\air\landing.group);
blocks_set; blocks_SpotterPost; main(scg\0\blocks\ground\spotter_post.group);
blocks_set; blocks_BalloonLine; main(scg\0\blocks\air\balloon_watch.group);
blocks_set; blocks_ConvoyColumn; main(scg\0\blocks\ground\convoyroute.group); route_fast_a(scg\0\blocks\ground\route_fast.group);
blocks_set; blocks_FuelDepot; main(scg\0\blocks\ground\depots\fuel_depot.group);
blocks_set; blocks_RiverBarges; main(scg\0\blocks\naval\barge_group.group);
blocks_set; blocks_HarbourGuns; main(scg\0\blocks\naval\harbour_watch.group);
blocks_set; blocks_PatrolBoats; main(scg\0\blocks\naval\patrol_boat.group);

#
## geo params
#
phase; PlayerStart; server_setpos(); blocks_PlayerStart; ;;
phase; WaypointNorth; server_waypoint(); blocks_WaypointNorth; in_2;;
phase; ReconSweep; azimuth(PlayerStart,-1,1500.000000,45); blocks_ReconSweep; ;;
phase; FrontSector; line(AAPositions,FuelDepot,0,800,5); blocks_FrontSector; ;;
phase; BomberRaid; server_targetpos(); blocks_BomberRaid; ;;
phase; EscortLeg; at(PlayerStart); blocks_EscortLeg; clone_location;;
phase; AAPositions; random(ConvoyColumn); blocks_AAPositions; in_range;scg\0\blocks\ground;
phase; Interceptors; random(BomberRaid); blocks_Interceptors; random_pos;;
phase; AceHunters; random(Interceptors); blocks_AceHunters; along_range;;
phase; HomeLanding; server_waypoint(); blocks_HomeLanding; land;;
phase; SpotterPost; at(FrontSector); blocks_SpotterPost; random;;
phase; BalloonLine; at(ConvoyColumn); blocks_BalloonLine; rear_board;;
phase; ConvoyColumn; line(RiverBarges,<EMPTY>,30,500,12); blocks_ConvoyColumn; ;;
phase; FuelDepot; fractal(<EMPTY>,ConvoyColumn,-1,35,left); blocks_FuelDepot; ;;
phase; RiverBarges; fractal(ReconSweep,EscortLeg,0,20,both); blocks_RiverBarges; ;;
phase; HarbourGuns; azimuth(RiverBarges,-2,2200.000000,270); blocks_HarbourGuns; ;;
phase; PatrolBoats; fractal(HarbourGuns,RiverBarges,15,10,right); blocks_PatrolBoats; ;;

#
## cases & switches
#
case; CaseOpening(EscortLeg,ReconSweep);
case; CaseThreat(Interceptors,AceHunters);
case; CaseNaval(HarbourGuns,PatrolBoats);
case; CaseFront(FrontSector,SpotterPost);
switch; 1; 0; 0; SwitchAir(CaseOpening,CaseThreat);
switch; 1; 5; 2; SwitchWater(CaseNaval);

#
## gate links
#
tlink; PlayerStart(start); WaypointNorth(start);
tlink; PlayerStart(start); EscortLeg(start);
olink; PlayerStart(OBJECT_plane); EscortLeg(OBJECT_plane);
olink; PlayerStart(OBJECT_leader); SpotterPost(OBJECT_plane);
olink; PlayerStart(OBJECT_plane); HomeLanding(OBJECT_plane);
tlink; WaypointNorth(spotted); Interceptors(spotted);
tlink; WaypointNorth(done); ReconSweep(start);
olink; WaypointNorth(OBJECT_plane); AAPositions(OBJECT_plane);
tlink; ReconSweep(spotted); FrontSector(spotted);
tlink; FrontSector(start); BomberRaid(start);
tlink; FrontSector(done); ConvoyColumn(start);
olink; AAPositions(OBJECT_target); BomberRaid(OBJECT_target);
olink; BomberRaid(OBJECT_plane); Interceptors(OBJECT_target);
tlink; BomberRaid(done); HomeLanding(done);
tlink; BomberRaid(failed); HomeLanding(failed);
olink; Interceptors(OBJECT_plane); AceHunters(OBJECT_plane);
olink; BalloonLine(OBJECT_target); ReconSweep(OBJECT_target);
tlink; BalloonLine(spotted); SpotterPost(start);
olink; ConvoyColumn(OBJECT_convoy); FuelDepot(OBJECT_convoy);
tlink; ConvoyColumn(arrived); FuelDepot(start);
tlink; ConvoyColumn(failed); RiverBarges(abort);
olink; RiverBarges(OBJECT_ship); HarbourGuns(OBJECT_ship);
olink; RiverBarges(OBJECT_ship); PatrolBoats(OBJECT_ship);
tlink; HarbourGuns(spotted); PatrolBoats(start);

#
## conditions
#
check; PlayerStart; squad($playersquad,$date);
check; ReconSweep; range(PRIMARY_LINK_PHASE,closest_outof,3000);
check; BomberRaid; squad(14,21.07.1917);
check; EscortLeg; location_type(Airfield);
check; AAPositions; coalition(fe);
check; Interceptors; in_radius(PRIMARY_LINK_PHASE,2500);
check; Interceptors; coalition();
check; HomeLanding; free();
check; SpotterPost; location_type(ReferenceLocation,RL_FiringPoint,RL_FrontLine);
check; BalloonLine; range(PRIMARY_LINK_PHASE,at,-1);
check; ConvoyColumn; location_type(GroundObjective,Transport,Vehicle);
check; RiverBarges; location_type(Navigation,River);
check; HarbourGuns; in_sector(PRIMARY_LINK_PHASE,120);
check; SpotterPost; coalition(n);

#
## property actions
#
action; PlayerStart(PlayerLead,Model); set_model(player model,server decides);
action; PlayerStart(PlayerLead,Skin); set_skin($player_skin);
action; PlayerStart(PlayerLead,Country); set_country(friendly);
action; PlayerStart(PlayerLead,Fuel); set_fuel(Fuel,80);
action; PlayerStart(PlayerWing,Model); set_model(friendly model 1,server decides);
action; PlayerStart(PlayerWing,Skin); set_skin($friendly_skin_1);
action; WaypointNorth(PatrolLead,Model); set_model(fighter,ally:fighter:kestrel_mk2);
action; WaypointNorth(PatrolLead,Skin); set_skin($by_player_squadron_skin);
action; WaypointNorth(PatrolLead,Country); set_country(friendly);
action; WaypointNorth(PatrolLead,Altitude); set_altitude(Altitude,1800);if(fuel>10); if(alt<=2000); 
action; ReconSweep(ReconPlane,Model); set_model(recon,ally:recon:harrow_b);
action; ReconSweep(ReconPlane,Skin); set_skin($friendly_skin_2);
action; ReconSweep(ReconPlane,Country); set_country(friendly);
action; ReconSweep(ReconPlane,Altitude); set_altitude(Altitude,2600);if(alt>=1000); 
action; ReconSweep(ReconPlane,Altitude); set_altitude(Altitude,3200);if(weather==3); 
action; FrontSector(Strongpoint,Country); set_country(clone_location);
action; FrontSector(,Night); import_rules(import_night_pack);
action; BomberRaid(RaidLead,Model); set_model(by career squadrons,$by_enemy_bomber_squadron_1);
action; BomberRaid(RaidLead,Skin); set_skin($by_enemy_bomber_squadron_skin_1);
action; BomberRaid(RaidLead,Country); set_country(enemy);
action; BomberRaid(RaidLead,Payload); set_payload(Payload,incendiary);if(target==2); 
action; BomberRaid(RaidLead,Payload); import_rules(import_raid_pack);
action; BomberRaid(RaidLead,Formation); set_formation(Formation,wedge);if(count>2); 
action; BomberRaid(RaidLead,Formation); set_spacing(Formation,120);
action; BomberRaid(RaidWing,Model); set_model(bomber,foe:bomber:gorsk_b4);
action; BomberRaid(RaidWing,Skin); set_skin($enemy_skin_2);
action; BomberRaid(,Weather); set_weather(overcast);
action; BomberRaid(,Weather); set_time(dawn);
action; BomberRaid(,Weather); set_light(low,12);if(season==2); 
action; EscortLeg(EscortLead,Model); set_model(unique random fighter,random friendly);
action; EscortLeg(EscortLead,Skin); set_skin($by_friendly_fighter_squadron_skin_2);
action; EscortLeg(EscortLead,Country); set_country(clone_location);
action; EscortLeg(EscortLead,Formation); set_formation(Formation,wedge);if(count>2); 
action; EscortLeg(EscortLead,Formation); set_spacing(Formation,120);
action; EscortLeg(EscortLead,Formation); import_rules(import_escort_pack);
action; AAPositions(AAGun,Model); set_model(gun,foe:gun:skyswat_q);
action; AAPositions(AAGun,Country); set_country(from_server);
action; Interceptors(Interceptor,Model); set_model(enemy model 1,server decides);
action; Interceptors(Interceptor,Skin); set_skin($enemy_skin_1);
action; Interceptors(Interceptor,Country); set_country(enemy);
action; Interceptors(Interceptor,Speed); set_speed(Speed,180);
action; AceHunters(AceLead,Model); set_model(unique random fighter,random enemy);
action; AceHunters(AceLead,Skin); set_skin($by_enemy_fighter_squadron_ace_skin_1);
action; AceHunters(AceLead,Country); set_country(enemy);
action; AceHunters(AceLead,Skill); set_skill(Skill,veteran);if(rank>=3); 
action; AceHunters(AceLead,Skill); set_skill(Skill,novice);if(rank<3); 
action; HomeLanding(,Storm); set_wind(Wind,14);if(month>=10); 
action; HomeLanding(,Storm); set_clouds(Clouds,overcast);if(month!=7); 
action; HomeLanding(,Storm); import_rules(import_harbour_pack);
action; SpotterPost(Spotter,Country); <empty>();
action; BalloonLine(Balloon,Model); set_model(balloon,ally:balloon:drift_kite);
action; BalloonLine(Balloon,Country); set_country(friendly);
action; ConvoyColumn(ConvoyLead,Model); set_model(lorry,foe:lorry:trekker_lorry);
action; ConvoyColumn(ConvoyLead,Country); set_country(enemy);
action; ConvoyColumn(ConvoyLead,Speed); set_speed(Speed,35);if(road==1); 
action; ConvoyColumn(ConvoyTail,Model); set_model(lorry,random enemy);
action; ConvoyColumn(ConvoyTail,Country); set_country(enemy);
action; ConvoyColumn(,Flags); add_flag(Flags,convoy_seen);
action; ConvoyColumn(,Flags); set_counter(Flags,3);if(day>1); 
action; FuelDepot(DepotGuard,Model); set_model(lorry,foe:lorry:trekker_tanker);
action; FuelDepot(DepotGuard,Country); set_country(enemy);
action; RiverBarges(BargeLead,Model); set_model(boat,foe:boat:reedcutter);
action; RiverBarges(BargeLead,Country); set_country(enemy);
action; RiverBarges(BargeLead,Speed); set_speed(Speed,12);
action; HarbourGuns(HarbourGun,Model); set_model(gun,foe:gun:longarm_h);
action; HarbourGuns(HarbourGun,Country); set_country(enemy);
action; HarbourGuns(,Delay); spawn_delay(45,45);if(wave==1); 
action; PatrolBoats(Boat,Model); set_model(boat,ally:boat:skiff_k9);
action; PatrolBoats(Boat,Skin); set_skin($plane_2_skin);
action; PatrolBoats(Boat,Country); set_country(friendly);
action; PatrolBoats(Boat,Speed); set_speed(Speed,24);

#
## unlinks
#
unlink_nonplayer_input; blocks_EscortLeg(abort)
unlink_nonplayer_output; blocks_EscortLeg(failed)
unlink_nonplayer_input; blocks_BomberRaid(abort,start)
unlink_nonplayer_output; blocks_ConvoyColumn(arrived,failed)

#
## gui helpers
#
gui_helper; PlayerStart; 400; 400;""; ( ); 1;
gui_helper; WaypointNorth; 1200; 400;
gui_helper; ReconSweep; 2000; 400;""; ( ); 3;
gui_helper; FrontSector; 2800; 400;
gui_helper; BomberRaid; 3600; 400;""; ( ); 6;
gui_helper; EscortLeg; 400; 1000;""; ( ); 2;
gui_helper; AAPositions; 1200; 1000;""; ( ); 5;
gui_helper; Interceptors; 2000; 1000;
gui_helper; AceHunters; 2800; 1000;""; ( ); 4;
gui_helper; HomeLanding; 3600; 1000;
gui_helper; SpotterPost; 400; 1600;
gui_helper; BalloonLine; 1200; 1600;
gui_helper; ConvoyColumn; 2000; 1600;""; ( ); 4;
gui_helper; FuelDepot; 2800; 1600;
gui_helper; RiverBarges; 1200; 2200;
gui_helper; HarbourGuns; 2000; 2200;""; ( ); 3;
gui_helper; PatrolBoats; 2800; 2200;
gui_helper; CaseOpening; -300; 400;
gui_helper; CaseThreat; -300; 700;
gui_helper; CaseNaval; -300; 1000;
gui_helper; CaseFront; -300; 1300;
gui_helper; SwitchAir; -600; 550;
gui_helper; SwitchWater; -600; 1000;
gui_helper; check; 466; 572;PlayerStart(squad)
gui_helper; check; 2066; 572;ReconSweep(range)
gui_helper; check; 3666; 572;BomberRaid(squad)
gui_helper; check; 466; 1172;EscortLeg(location_type)
gui_helper; check; 1266; 1172;AAPositions(coalition)
gui_helper; check; 2066; 1172;Interceptors(in_radius)
gui_helper; check; 2066; 1205;Interceptors(coalition)
gui_helper; check; 3666; 1172;HomeLanding(free)
gui_helper; check; 466; 1772;SpotterPost(location_type)
gui_helper; check; 1266; 1772;BalloonLine(range)
gui_helper; check; 2066; 1772;ConvoyColumn(location_type)
gui_helper; check; 1266; 2372;RiverBarges(location_type)
gui_helper; check; 2066; 2372;HarbourGuns(in_sector)
gui_helper; check; 466; 1805;SpotterPost(coalition)
gui_helper; Model; 466; 378;PlayerStart; (PlayerLead);
gui_helper; Skin; 466; 345;PlayerStart; (PlayerLead);
gui_helper; Country; 466; 312;PlayerStart; (PlayerLead);
gui_helper; Fuel; 466; 279;PlayerStart; (PlayerLead);
gui_helper; Model; 466; 246;PlayerStart; (PlayerWing);
gui_helper; Skin; 466; 213;PlayerStart; (PlayerWing);
gui_helper; Model; 1266; 378;WaypointNorth; (PatrolLead);
gui_helper; Skin; 1266; 345;WaypointNorth; (PatrolLead);
gui_helper; Country; 1266; 312;WaypointNorth; (PatrolLead);
gui_helper; Altitude; 1266; 279;WaypointNorth; (PatrolLead);
gui_helper; Model; 2066; 378;ReconSweep; (ReconPlane);
gui_helper; Skin; 2066; 345;ReconSweep; (ReconPlane);
gui_helper; Country; 2066; 312;ReconSweep; (ReconPlane);
gui_helper; Altitude; 2066; 279;ReconSweep; (ReconPlane);
gui_helper; Country; 2866; 378;FrontSector; (Strongpoint);
gui_helper; Night; 3200; 290;FrontSector; ();
gui_helper; Model; 3666; 378;BomberRaid; (RaidLead);
gui_helper; Skin; 3666; 345;BomberRaid; (RaidLead);
gui_helper; Country; 3666; 312;BomberRaid; (RaidLead);
gui_helper; Payload; 3666; 279;BomberRaid; (RaidLead);
gui_helper; Formation; 3666; 246;BomberRaid; (RaidLead);
gui_helper; Model; 3666; 213;BomberRaid; (RaidWing);
gui_helper; Skin; 3666; 180;BomberRaid; (RaidWing);
gui_helper; Weather; 4000; 530;BomberRaid; ();
gui_helper; Model; 466; 978;EscortLeg; (EscortLead);
gui_helper; Skin; 466; 945;EscortLeg; (EscortLead);
gui_helper; Country; 466; 912;EscortLeg; (EscortLead);
gui_helper; Formation; 466; 879;EscortLeg; (EscortLead);
gui_helper; Model; 1266; 978;AAPositions; (AAGun);
gui_helper; Country; 1266; 945;AAPositions; (AAGun);
gui_helper; Model; 2066; 978;Interceptors; (Interceptor);
gui_helper; Skin; 2066; 945;Interceptors; (Interceptor);
gui_helper; Country; 2066; 912;Interceptors; (Interceptor);
gui_helper; Speed; 2066; 879;Interceptors; (Interceptor);
gui_helper; Model; 2866; 978;AceHunters; (AceLead);
gui_helper; Skin; 2866; 945;AceHunters; (AceLead);
gui_helper; Country; 2866; 912;AceHunters; (AceLead);
gui_helper; Skill; 2866; 879;AceHunters; (AceLead);
gui_helper; Storm; 4000; 850;HomeLanding; ();
gui_helper; Country; 466; 1578;SpotterPost; (Spotter);
gui_helper; Model; 1266; 1578;BalloonLine; (Balloon);
gui_helper; Country; 1266; 1545;BalloonLine; (Balloon);
gui_helper; Model; 2066; 1578;ConvoyColumn; (ConvoyLead);
gui_helper; Country; 2066; 1545;ConvoyColumn; (ConvoyLead);
gui_helper; Speed; 2066; 1512;ConvoyColumn; (ConvoyLead);
gui_helper; Model; 2066; 1479;ConvoyColumn; (ConvoyTail);
gui_helper; Country; 2066; 1446;ConvoyColumn; (ConvoyTail);
gui_helper; Flags; 2400; 1650;ConvoyColumn; ();
gui_helper; Model; 2866; 1578;FuelDepot; (DepotGuard);
gui_helper; Country; 2866; 1545;FuelDepot; (DepotGuard);
gui_helper; Model; 1266; 2178;RiverBarges; (BargeLead);
gui_helper; Country; 1266; 2145;RiverBarges; (BargeLead);
gui_helper; Speed; 1266; 2112;RiverBarges; (BargeLead);
gui_helper; Model; 2066; 2178;HarbourGuns; (HarbourGun);
gui_helper; Country; 2066; 2145;HarbourGuns; (HarbourGun);
gui_helper; Delay; 2400; 2130;HarbourGuns; ();
gui_helper; Model; 2866; 2178;PatrolBoats; (Boat);
gui_helper; Skin; 2866; 2145;PatrolBoats; (Boat);
gui_helper; Country; 2866; 2112;PatrolBoats; (Boat);
gui_helper; Speed; 2866; 2079;PatrolBoats; (Boat);
gui_helper; unlink_EscortLeg; 150; 850;
gui_helper; unlink_BomberRaid; 3350; 250;
gui_helper; unlink_ConvoyColumn; 1750; 1450;
