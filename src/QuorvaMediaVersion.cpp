#include "QuorvaMediaVersion.h"

extern "C" {
// Two blanks before PROJECT and the trailing line feed are part of the marker format.
const unsigned char QuorvaMediaVersionString[] =
    "@(#)PROGRAM:QuorvaMedia  PROJECT:QuorvaMedia-1.1.0\n";
const double QuorvaMediaVersionNumber = 1.1;
}
