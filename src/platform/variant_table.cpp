#include "platform/variant_table.h"

#include "platform/runtime_error.h"

namespace platform {

namespace {
std::size_t Count(long upper) { return upper < 0 ? 0 : static_cast<std::size_t>(upper) + 1; }
}  // namespace

VariantTable::VariantTable(long upper1, long upper2) : dimensioned_(true), upper1_(upper1), upper2_(upper2) {
    if (upper1 < -1 || upper2 < -1) throw RuntimeError(err::SubscriptOutOfRange);
    elements_.resize(Count(upper1) * Count(upper2));
}

long VariantTable::UBound(int dimension) const {
    if (!dimensioned_) throw RuntimeError(err::TypeMismatch);
    if (dimension == 1) return upper1_;
    if (dimension == 2) return upper2_;
    throw RuntimeError(err::SubscriptOutOfRange);
}

std::size_t VariantTable::Offset(long index1, long index2) const {
    if (!dimensioned_) throw RuntimeError(err::TypeMismatch);
    if (index1 < 0 || index1 > upper1_ || index2 < 0 || index2 > upper2_) throw RuntimeError(err::SubscriptOutOfRange);
    return static_cast<std::size_t>(index2) * Count(upper1_) + static_cast<std::size_t>(index1);
}

Value& VariantTable::At(long index1, long index2) { return elements_[Offset(index1, index2)]; }

const Value& VariantTable::At(long index1, long index2) const { return elements_[Offset(index1, index2)]; }

void VariantTable::RedimPreserve(long upper2) {
    if (!dimensioned_) throw RuntimeError(err::TypeMismatch);
    if (upper2 < -1) throw RuntimeError(err::SubscriptOutOfRange);
    upper2_ = upper2;
    elements_.resize(Count(upper1_) * Count(upper2));
}

}  // namespace platform
