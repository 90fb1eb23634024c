# The tower's block lies outside the configured block folders: reading the
# template takes it from its file, but the reload rebuilds the pool from the
# folders alone. The file still opens, so the reference stays, but the pool
# does not know the block and the phase loses its gates and properties: the
# block's action and both links of the tower go, one line each.
blocks_set; blocks_Guard; main(scg\0\blocks\ground\bridge_guard.group);
blocks_set; blocks_Tower; main(scg\0\extra\watchtower.group);
phase; Guard; server_setpos(); blocks_Guard; ;;
phase; Tower; random(Guard); blocks_Tower; random_pos;;
tlink; Guard(done); Tower(start);
tlink; Tower(done); Guard(start);
action; Tower(Lookout,Model); set_model(tower,observation post);
gui_helper; Guard; 400; 400;
gui_helper; Tower; 1200; 400;
gui_helper; Model; 1600; 300;Tower; (Lookout);
