# a comment line
#phase; P0; at(P1); blocks_P0; clone_location;;
 #case; C0(P1);
 # case; C0(P1);
   

foo; bar;
Case; C9(P1);
PHASE; P9; at(P1); blocks_P9; a;;
case;
;;;  
case; C1(P1,P2);
	tlink; P1(out_1); P2(in_1);
##
gui_helper
