// A value of any of the kinds that settings and rows carry.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

namespace kestri {

using Variant = std::variant<std::monostate, bool, std::int32_t, double, std::u16string>;

// Identity; makes a callback's address storable.
template <typename Address>
constexpr Address GetSubProcAddress(Address address) {
  return address;
}

// True for two values of the same kind that are equal; values of different kinds never are.
inline bool ChkDatReturnBool(const Variant& a, const Variant& b) {
  return a == b;
}

// Stores the value into every element.
inline void ArrangementFormat(const Variant& value, std::span<Variant> elements) {
  for (Variant& element : elements) element = value;
}
inline void ArrangementFormat(const Variant& value, Variant& target) {
  target = value;
}

inline void VariantFormat(Variant& target, const Variant& value) {
  target = value;
}

}  // namespace kestri
