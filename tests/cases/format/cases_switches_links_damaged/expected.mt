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
case; C1();
case; C2(P1,P2,P3);
case; C3();
case; C(4,P1);
switch; 3; 0; 1; S3();
switch; 0; 0; 0; S1(C1);
switch; -1; 7; 2; S2(C1,C2);
switch; 4; 12; 0; S4(C2);

#
## gate links
#
tlink; P1(out_1); P2(in_1);
olink; P1(obj); P2(target);

#
## conditions
#

#
## property actions
#

#
## unlinks
#

#
## gui helpers
#
