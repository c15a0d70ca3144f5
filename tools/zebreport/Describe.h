#pragma once

#include "Names.h"

#include <string>
#include <vector>

namespace zebreport {

/// A type of values for people: "text", "number", "date", "graphic", else its number.
std::wstring TypeName(int type);

/// What is to be said of an object beside its name and its tie to another one, one line each; what is at its default is
/// left out.
std::vector<std::wstring> Describe(const CPlaceable& object);

/// The tie to another object, in one line.
/// @param place the zone or page that the object lies in
std::wstring DescribeRelation(const CPlaceableRelation& relation, const Names& names,
                              const std::wstring& place);

}  // namespace zebreport
