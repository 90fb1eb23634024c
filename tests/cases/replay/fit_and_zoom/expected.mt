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

#
## unlinks
#

#
## gui helpers
#
