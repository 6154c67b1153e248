#include <QWidget>
#include <QtPlugin>

/** What loading any Widgets plug-in costs. */
class EmptyPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Empty")

public:
    /** Makes it need the Widgets library, as the module does. */
    Q_INVOKABLE QWidget* createWidget() const { return new QWidget; }
};

#include "emptyplugin.moc"
