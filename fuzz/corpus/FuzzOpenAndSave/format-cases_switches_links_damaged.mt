switch; 3; 0; 1; S3;
case; C1();
case; C2(P1,P2,P3);
case;C3
case; C 4(P1);
switch; 1; 0; 2;
switch; x; y; z; S1(C1);
switch; -1; 7abc; 2; S2(C1,C2);
switch; +4; 12abc; -0; S4(C2);
tlink; P1(out_1); P2;
tlink; P1(out_1); P2(in_1); P3(in_2);
olink; P1(obj); P2(target);
olink; P1(); P2(in_1);
