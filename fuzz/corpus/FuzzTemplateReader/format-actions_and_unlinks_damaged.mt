action; P1(OBJECT,Model); <empty>();
action; P1(,Country); set_country(1);
action; P2(PLANE,Skin); set_skin(a, b);if(x==1); if(y == 2); 
action; P2(PLANE,Skin); set_skin(c);   if(z); 
action; P3; r();
action; P3(a); r();
action; P3(a,b,c); r();
action; P3(a,b);
action; P3(a,b); r
action; P3(a,b); r;
   action; P4(O,N); f(g(1,2),3);
unlink_nonplayer_input; blocks_P1()
unlink_nonplayer_input; blocks_P1(in_1,in_2)
unlink_nonplayer_output; blocks_P2(out_1);
unlink_nonplayer_output; blocks_P3
