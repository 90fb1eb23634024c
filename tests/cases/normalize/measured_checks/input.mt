# Checks that measure from the primary link phase name it, whatever their
# record held, and a check's gui helper names its phase and type.
blocks_set; blocks_T; main(scg\0\blocks\air\patrol.group);
phase; T; random(<EMPTY>); blocks_T; random_pos;;
check; T; range();
check; T; in_radius(other,500);
check; T; in_sector(other);
check; T; coalition(1);
gui_helper; check; 6; 0;T(coalition)
