#pragma once

#include <QWidget>

class DevelopmentHost;
class Faults;

/** Sets which commands fail, and how much longer each takes. Does not own the host. */
class FaultPane : public QWidget
{
    Q_OBJECT

public:
    explicit FaultPane(DevelopmentHost* host);

signals:
    /** \a text says why a regular expression is refused; it is empty once it is in order. */
    void said(const QString& text);

private:
    QWidget* createCount(DevelopmentHost* host);
    QWidget* createPattern(DevelopmentHost* host);
    QWidget* createLatency();

    Faults& faults;
};
