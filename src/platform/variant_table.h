// A two-dimensional array of variants, as the runtime's ReDim made one: both
// dimensions count from 0, every element is Empty until written, and only the last
// dimension may grow while the elements are kept. A table never dimensioned stands
// for a variant that holds no array: asking its bounds is a type mismatch.
#pragma once

#include <vector>

#include "platform/value.h"

namespace platform {

class VariantTable {
public:
    VariantTable() = default;
    // ReDim table(upper1, upper2).
    VariantTable(long upper1, long upper2);

    bool IsArray() const { return dimensioned_; }
    // The upper bound of dimension 1 or 2; error 13 when no array, 9 for another dimension.
    long UBound(int dimension) const;
    // Error 9 outside the bounds, 13 when no array.
    Value& At(long index1, long index2);
    const Value& At(long index1, long index2) const;
    // ReDim Preserve table(UBound(1), upper2): the elements kept, new ones Empty.
    void RedimPreserve(long upper2);

private:
    std::size_t Offset(long index1, long index2) const;

    bool dimensioned_ = false;
    long upper1_ = -1, upper2_ = -1;
    std::vector<Value> elements_;  // index1 varies fastest, so growing dimension 2 appends
};

}  // namespace platform
