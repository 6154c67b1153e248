#include <QWidget>
#include <QtPlugin>

/** A plug-in that does nothing. The time to load it is the time to load any Widgets plug-in. */
class EmptyPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Empty")

public:
    /** Makes this plug-in need the Widgets library, as the module does. */
    Q_INVOKABLE QWidget* createWidget() const { return new QWidget; }
};

#include "emptyplugin.moc"
