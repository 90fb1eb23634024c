#pragma once

#include <functional>
#include <string>

namespace lw {

// A date as the month calendar holds it. A calendar always shows some day, so
// the status says whether the day is one at all: Invalid for a date the
// calendar could not take, Null for no date.
struct CalendarDate {
    enum class Status { Valid, Invalid, Null };

    int day = 0;
    int month = 0;
    int year = 0;
    Status status = Status::Null;
};

// The day a fresh calendar opens on.
inline constexpr CalendarDate kDefaultCalendarDate{20, 7, 1917, CalendarDate::Status::Valid};

bool operator==(const CalendarDate& a, const CalendarDate& b);
bool operator!=(const CalendarDate& a, const CalendarDate& b);

// Whether the day exists in the Gregorian calendar, years 1 to 9999.
bool IsCalendarDay(int day, int month, int year);

// "%d.%m.%Y" with two-digit day and month, "20.07.1917"; "Invalid DateTime"
// for an invalid date and an empty text for a null one.
std::string FormatDate(const CalendarDate& date);

// Reads the "%d.%m.%Y" form: one or two digits of day and of month, one to
// four of year, dots between and nothing else, naming a real day. On success
// `date` holds that day as valid; otherwise it is left as it was.
bool ReadDayMonthYear(const std::string& text, CalendarDate& date);

// Reads a stored date into a calendar date, with the same contract as
// ReadDayMonthYear. The editor passes one that also knows the user's own
// short date form.
using DateReader = std::function<bool(const std::string&, CalendarDate&)>;

} // namespace lw
