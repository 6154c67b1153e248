#pragma once

#include <QString>
#include <QStringList>

/**
 * A version as three signed integers, compared lexicographically: major, then minor, then patch.
 *
 * A threshold is written with patch -1, so that every release of that minor version meets it:
 * protocol 0.13 means `protocol >= VersionInfo(0, 13, -1)`.
 * A plain value. The host creates it. Host and modules copy and compare it on the GUI thread.
 */
class VersionInfo
{
public:
    VersionInfo(int ma, int mi, int pa) : ma(ma), mi(mi), pa(pa) {}

    void setVer(int major, int minor, int patchLevel)
    {
        ma = major;
        mi = minor;
        pa = patchLevel;
    }

    /**
     * Reads "1.23.0" or "1.23". A missing patch counts as 0. Refuses blanks and plus signs.
     * Sets \a ok, which may be null, to true if \a text is a version. Otherwise sets it to false and
     * leaves this version unchanged.
     */
    void fromString(const QString& text, bool* ok = nullptr)
    {
        const QStringList fields = text.split(QLatin1Char('.'));
        int numbers[3] = {0, 0, 0};
        bool isVersion = fields.size() == 2 || fields.size() == 3;
        for (int i = 0; isVersion && i < fields.size(); ++i) {
            const QString& field = fields.at(i);
            isVersion = field.startsWith(QLatin1Char('-')) || (!field.isEmpty() && field.at(0).isDigit());
            if (isVersion && field.at(field.size() - 1).isDigit())
                numbers[i] = field.toInt(&isVersion);
            else
                isVersion = false;
        }
        if (isVersion)
            setVer(numbers[0], numbers[1], numbers[2]);
        if (ok)
            *ok = isVersion;
    }

    /** Returns the version as "1.23.0", always with all three integers. */
    QString toString() const { return QStringLiteral("%1.%2.%3").arg(ma).arg(mi).arg(pa); }

    // The names are not major() and minor(), because older C libraries define these as macros.
    int majorVersion() const { return ma; }
    int minorVersion() const { return mi; }
    int patch() const { return pa; }

    bool operator==(const VersionInfo& other) const { return ma == other.ma && mi == other.mi && pa == other.pa; }
    bool operator!=(const VersionInfo& other) const { return !(*this == other); }
    bool operator>(const VersionInfo& other) const
    {
        if (ma != other.ma)
            return ma > other.ma;
        if (mi != other.mi)
            return mi > other.mi;
        return pa > other.pa;
    }
    bool operator>=(const VersionInfo& other) const { return *this == other || *this > other; }
    bool operator<(const VersionInfo& other) const { return !(*this >= other); }
    bool operator<=(const VersionInfo& other) const { return !(*this > other); }

private:
    int ma;
    int mi;
    int pa;
};
