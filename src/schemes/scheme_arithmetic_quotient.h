// How many times a slab step fits into a quantity, counted the way the schemes have
// always counted it: by repeated subtraction, each operand written out as text and
// read back, so that 0.3 taken from 0.9 fits three times and not two.
#pragma once

namespace schemes {

// A number written as the runtime writes it (15 significant digits) and read back.
double SnapThroughText(double value);

// The whole number of times the divider can be taken from the dividend while it is
// at most what is left; every operand of every comparison and subtraction snapped
// through its text form. The answer is that of the counting itself, reached in a
// handful of steps however large it is. A count that could never end (a divider of
// 0 or below that fits, or one too small to change what is left) raises error 5.
double CountBySubtraction(double dividend, double divider);

}  // namespace schemes
