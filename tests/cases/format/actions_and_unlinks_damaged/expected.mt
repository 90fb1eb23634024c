# tarnwick Ostrel mission template file [text dump]

#
## block sets
#

#
## geo params
#

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
action; P1(OBJECT,Model); empty();
action; P1(,Country); set_country(1);
action; P2(PLANE,Skin); set_skin(a,b);if(x==1); if(y == 2); 
action; P2(PLANE,Skin); set_skin(c);if(z); 
action; P3(a,b); r();
action; P4(O,N); f(g(1,2),3);

#
## unlinks
#
unlink_nonplayer_input; blocks_P1(in_1,in_2)
unlink_nonplayer_output; blocks_P2(out_1)

#
## gui helpers
#
