#include "dialogs/CalendarDate.h"

#include <cstdio>

namespace lw {

namespace {

bool IsLeapYear(int year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

int DaysInMonth(int month, int year) {
    static const int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

// Reads a run of 1 to `maxDigits` digits at `pos` and moves past it.
bool ReadDigits(const std::string& text, std::size_t& pos, std::size_t maxDigits, int& value) {
    const std::size_t start = pos;
    value = 0;
    while (pos < text.size() && pos - start < maxDigits && text[pos] >= '0' && text[pos] <= '9')
        value = value * 10 + (text[pos++] - '0');
    return pos > start;
}

bool ReadDot(const std::string& text, std::size_t& pos) {
    if (pos >= text.size() || text[pos] != '.')
        return false;
    ++pos;
    return true;
}

} // namespace

bool operator==(const CalendarDate& a, const CalendarDate& b) {
    return a.day == b.day && a.month == b.month && a.year == b.year && a.status == b.status;
}

bool operator!=(const CalendarDate& a, const CalendarDate& b) {
    return !(a == b);
}

bool IsCalendarDay(int day, int month, int year) {
    return year >= 1 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 &&
           day <= DaysInMonth(month, year);
}

std::string FormatDate(const CalendarDate& date) {
    switch (date.status) {
    case CalendarDate::Status::Null:
        return std::string();
    case CalendarDate::Status::Invalid:
        return "Invalid DateTime";
    case CalendarDate::Status::Valid:
        break;
    }
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%02d.%02d.%d", date.day, date.month, date.year);
    return buffer;
}

bool ReadDayMonthYear(const std::string& text, CalendarDate& date) {
    std::size_t pos = 0;
    int day = 0;
    int month = 0;
    int year = 0;
    const bool whole = ReadDigits(text, pos, 2, day) && ReadDot(text, pos) &&
                       ReadDigits(text, pos, 2, month) && ReadDot(text, pos) &&
                       ReadDigits(text, pos, 4, year) && pos == text.size();
    if (!whole || !IsCalendarDay(day, month, year))
        return false;
    date = CalendarDate{day, month, year, CalendarDate::Status::Valid};
    return true;
}

} // namespace lw
