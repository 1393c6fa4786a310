#pragma once
// minutesToDurationText: how a duration in whole minutes reads in a merged
// document. Hours, when there are any, as "N hr", then the minutes as "N min"
// unless the hours are whole: 90 is "1 hr 30 min", 120 "2 hr", 31 "31 min",
// 0 "0 min". The units are abbreviations and take no plural. A negative
// duration reads as its size with a leading "-": -90 is "-1 hr 30 min".

#include <cstdint>
#include <string>

namespace qb {

std::string minutesToDurationText(int32_t minutes);

}  // namespace qb
