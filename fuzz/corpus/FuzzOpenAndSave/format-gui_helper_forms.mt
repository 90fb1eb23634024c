gui_helper; P1; 100; 200;""; ( ); 3;
gui_helper; P2;
gui_helper; P2; 10;
gui_helper; P2; 10
gui_helper; P2; 10; 20;
gui_helper; P3; -15; abc;
gui_helper; check; 100; 250;P1(in_radius)
gui_helper; check; 110; 250;()
gui_helper; check; 120; 250;""; ( ); 5;
gui_helper; Model; 180; 200;P1; (OBJECT);
gui_helper; Country; 180; 220;P1; ();
gui_helper; Kind; 180; 240;P1
gui_helper; Skin; 1; 2;P2; (PLANE); 4;
gui_helper; C1; 300; 200;
gui_helper; unlink_P1; 60; 200; 0;
gui_helper; P4; 5; 6;""; ( ); 0;
