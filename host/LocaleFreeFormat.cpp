#include "LocaleFreeFormat.h"

#include <cstdio>
#include <locale.h> // NOLINT(modernize-deprecated-headers): newlocale() is not in <clocale>

namespace {

/** In its scope the C library formats numbers with a decimal point, in this thread only. */
class DecimalPoint
{
public:
    DecimalPoint() : plain(newlocale(LC_NUMERIC_MASK, "C", nullptr)), previous(uselocale(plain)) {}
    ~DecimalPoint()
    {
        uselocale(previous);
        freelocale(plain);
    }
    Q_DISABLE_COPY(DecimalPoint)

private:
    locale_t plain;
    locale_t previous;
};

} // namespace

QByteArray formatLocaleFree(const char* format, va_list arguments)
{
    const DecimalPoint scope;
    va_list again;
    va_copy(again, arguments);
    const int length = vsnprintf(nullptr, 0, format, again);
    va_end(again);
    QByteArray text(qMax(length, 0), '\0');
    static_cast<void>(vsnprintf(text.data(), static_cast<size_t>(text.size()) + 1, format, arguments));
    return text;
}
