# one phase alone, for an import whose box has no size
blocks_set; blocks_Lone; main(scg\0\blocks\air\patrol.group);
phase; Lone; server_setpos(); blocks_Lone; ;;
gui_helper; Lone; 40; 40;
