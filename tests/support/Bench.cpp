#include "Bench.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

namespace {

constexpr int pollMilliseconds = 5;

void warn(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg && message != "This plugin does not support propagateSizeHints()")
        QTest::qFail(qPrintable("Qt says: " + message), __FILE__, __LINE__);
}

VersionInfo version(const QByteArray& text)
{
    VersionInfo result(0, 0, 0);
    bool isVersion = false;
    result.fromString(text, &isVersion);
    if (!isVersion)
        qFatal("no version: %s", text.constData());
    return result;
}

QString cellText(const QTableWidgetItem* item)
{
    if (!item)
        return "(none)";
    const QVariant data = item->data(Qt::UserRole);
    const QVariant check = item->data(Qt::CheckStateRole);
    return item->text() + (data.isValid() ? '<' + data.toString() + '>' : QString())
           + (check.isValid() ? (check.toInt() == Qt::Checked ? "x" : "o") : "")
           + (item->flags() & Qt::ItemIsEnabled ? "" : "~");
}

QString rowsText(const QTableWidget* table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table->columnCount(); ++column)
            cells.append(cellText(table->item(row, column)));
        rows.append(cells.join(','));
    }
    return rows.join('|');
}

QString itemsText(const QComboBox* box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items.append((i == box->currentIndex() ? "*" : "") + box->itemText(i) + '=' + box->itemData(i).toString());
    return items.join('|');
}

template <typename SpinBox>
QString rangeText(const SpinBox* box)
{
    return QString("%1..%2:%3").arg(box->minimum()).arg(box->maximum()).arg(box->value());
}

QString contentText(QWidget* widget)
{
    if (const auto* box = qobject_cast<QComboBox*>(widget))
        return itemsText(box);
    if (const auto* frequency = qobject_cast<QDoubleSpinBox*>(widget))
        return rangeText(frequency);
    if (const auto* divisor = qobject_cast<QSpinBox*>(widget))
        return rangeText(divisor);
    if (const auto* table = qobject_cast<QTableWidget*>(widget))
        return rowsText(table);
    const auto* label = qobject_cast<QLabel*>(widget);
    return label ? label->text() : QString();
}

} // namespace

void failOnWarnings()
{
    qInstallMessageHandler(warn);
}

Bench::Bench(const QByteArray& protocol, const QByteArray& script, const QString& model)
    : versions(VersionInfo(1, 0, 0), version(protocol), VersionInfo(1, 0, 0), model), parent(new QWidget),
      loader(PLUGIN_FILE)
{
    failOnWarnings();
    channel.script(script);
    if (!loader.load())
        qFatal("%s", qPrintable(loader.errorString()));
    loader.setParameters(&channel, parent, &versions, false);
    element = loader.module()->get_gui_elements().first();
    QObject::connect(&boxPoller, &QTimer::timeout, &boxPoller, [this] { closeBox(); });
    boxPoller.start(pollMilliseconds);
    parent->show();
}

Bench::~Bench()
{
    loader.unload();
    delete parent;
}

void Bench::closeBox()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return;
    if (insteadOfClosingBox)
        return std::exchange(insteadOfClosingBox, nullptr)();
    const bool isWarning = box->icon() == QMessageBox::Critical && box->standardButtons() == QMessageBox::Ok;
    boxes.append((isWarning ? "" : "not critical: ") + box->windowTitle().toUtf8() + ": " + box->text().toUtf8());
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
}

int Bench::open(const DialogUser::Steps& steps) const
{
    int result = -3;
    openBy([&] { QMetaObject::invokeMethod(dialog(), "update_and_exec", Q_RETURN_ARG(int, result)); }, steps);
    return result;
}

void Bench::openBy(const DialogUser::Steps& trigger, const DialogUser::Steps& steps) const
{
    // As in a host: the focus goes from its window to the dialog.
    parent->activateWindow();
    QVERIFY(QTest::qWaitFor([this] { return parent->isActiveWindow(); }));
    QVERIFY2(user().openBy(trigger, steps) != DialogUser::LeftOpen, "the dialog was left open");
}

QByteArray Bench::see(const QByteArray& name) const
{
    auto* widget = find<QWidget>(name);
    if (!widget)
        return "no widget " + name;
    const QString state = QString(widget->isEnabled() ? "" : " off") + (widget->isHidden() ? " hidden" : "");
    return (contentText(widget) + state).toUtf8();
}
