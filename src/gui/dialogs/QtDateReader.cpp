#include "QtDateReader.h"

#include "QtText.h"

#include <QDate>
#include <QLocale>

lw::DateReader QtDateReader() {
    return [](const std::string& text, lw::CalendarDate& date) {
        if (lw::ReadDayMonthYear(text, date))
            return true;
        const QDate read = QLocale::system().toDate(ToQString(text), QLocale::ShortFormat);
        if (!read.isValid() || !lw::IsCalendarDay(read.day(), read.month(), read.year()))
            return false;
        date = lw::CalendarDate{read.day(), read.month(), read.year(),
                                lw::CalendarDate::Status::Valid};
        return true;
    };
}
