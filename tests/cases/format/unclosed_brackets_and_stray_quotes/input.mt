blocks_set; blocks_P1; main(scg\0\blocks\air\patrol.group);
phase; P1; server_setpos(); blocks_P1; ;;
check; P1; coalition("e);
check; P1; coalition(x,");
action; P1(O,N); f(g(1,2);
action; P1(O,M); h(k(3);if(x);
