// The smallest complete host: prints each command and answers it from a table. Usage: minimal-host PLUGIN [--once]
#include "BackendVersions.h"
#include "IOManager.h"
#include "ModuleInterface.h"

#include <QtWidgets>

#include <clocale>
#include <cstdarg>
#include <cstdio>

// A row answers every command that starts with its name. max_output_delay has no row, to show a failure.
const char* const table =
    "config is_changeable=yes|synccard available=yes|synccard number_of_modes=1|synccard mode t01=cam100|"
    "zorvan2 get synccard mode_desc=zorvan2 get synccard mode_desc cam100 \"Cameras at 100 Hz\"|"
    "zorvan2 get synccard active_mode=zorvan2 get synccard active_mode none|"
    "synccard has_input_frequency=yes|synccard input_frequency=video 59.940|synccard number_of_channels=2|"
    "synccard number_of_synccards=1|synccard synccard d01=0x0402 4711|synccard model_desc=\"Sync card\"|"
    "synccard has_source=yes|synccard source=internal|synccard has_output=yes|synccard output d01=ttl|"
    "synccard max_internal_frequency=500|synccard internal_frequency=120.5|synccard max_external_divisor=8|"
    "synccard external_divisor=2|synccard output_delay=0.25|synccard output_during_idle=yes";

// The body of a formatting operation. Only the operation can read its "...". "store" keeps the answer and may set ok.
#define ANSWER(operation, store)                                                                                       \
    va_list arguments;                                                                                                 \
    va_start(arguments, format);                                                                                       \
    const QByteArray answer = answerTo(operation, format, arguments);                                                  \
    va_end(arguments);                                                                                                 \
    bool ok = !answer.isNull();                                                                                        \
    store;                                                                                                             \
    return ok ? 0 : -1

class TableChannel : public IOManager
{
    // Prints the command and returns its answer. A null answer is a failure: it does not fit the buffer, for instance.
    static QByteArray answerTo(const QByteArray& operation, const char* format, va_list arguments)
    {
        char command[400];
        qvsnprintf(command, sizeof command, format, arguments);
        QByteArray answer = operation == "set" ? "ok" : nullptr;
        const QByteArrayList rows = QByteArray(table).split('|');
        for (const QByteArray& row : rows)
            if (answer.isNull() && QByteArray(command).startsWith(row.left(row.indexOf('='))))
                answer = row.mid(row.indexOf('=') + 1);
        const QHash<QByteArray, int> bufferSizes = {{"synccard has_input_frequency", 16}, {"synccard output d01", 100}};
        if (answer.size() >= bufferSizes.value(command, 200))
            answer.clear();
        printf("%s %s -> %s\n", operation.data(), command, answer.isNull() ? "failed" : answer.data());
        return answer;
    }

public:
    int sendCommand(char* text, const char* format, ...) override { ANSWER("send", qstrcpy(text, answer.data())); }
    int getParameter(char* text, const char* format, ...) override { ANSWER("get", qstrcpy(text, answer.data())); }
    int getParameterInt(int* i, const char* format, ...) override { ANSWER("int", *i = answer.toInt(&ok)); }
    int getParameterDouble(double* d, const char* format, ...) override { ANSWER("double", *d = answer.toDouble(&ok)); }
    int getParameterBool(bool* b, const char* format, ...) override { ANSWER("bool", *b = answer == "yes"); }
    int setParameter(const char* format, ...) override { ANSWER("set", {}); }
    void reportError(const char*, const char*, int, const char* message) override { printf("report %s\n", message); }
};

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    static_cast<void>(setlocale(LC_NUMERIC, "C")); // The user's locale, set by QApplication, may have a decimal comma.
    const QString file = QFileInfo(QApplication::arguments().value(1)).absoluteFilePath();
    QPluginLoader loader(file);
    loader.setLoadHints(QLibrary::LoadHints()); // By default unload() leaves the plug-in in memory.
    const bool isModule = loader.metaData().value("IID") == "org.zorvan.Zorvan2.SnyccardSettingsModule";
    auto* module = isModule ? qobject_cast<ModuleInterface*>(loader.instance()) : nullptr;
    if (!module) {
        QTextStream(stderr) << "minimal-host: no module plug-in: " << file << ": " << loader.errorString() << '\n';
        return 2;
    }

    TableChannel channel;
    BackendVersions versions({1, 0, 0}, {1, 23, 0}, {1, 0, 0}, "EXAMPLE 1"); // protocol 1.23
    QMainWindow window;
    module->set_param("CommandManager", QVariant::fromValue<IOManager*>(&channel));
    module->set_param("ModuleParent", QVariant::fromValue<QWidget*>(&window));
    module->set_param("BackendVersions", QVariant::fromValue(&versions));
    module->set_param("ObserverMode", false);
    const GuiElement* element = module->get_gui_elements().constFirst(); // the module's single menu entry
    window.menuBar()->addMenu(element->menu_name)->addAction(element->menu_entry);
    window.show();
    if (QApplication::arguments().contains("--once")) { // for tests: changes the frequency, presses OK
        QTimer::singleShot(0, element->content, [dialog = qobject_cast<QDialog*>(element->content)] {
            dialog->findChild<QDoubleSpinBox*>("doubleSpinBox_frequency")->setValue(61.5);
            dialog->accept();
        });
        element->menu_entry->trigger();
    } else {
        QApplication::exec(); // The menu entry opens the dialog.
    }
    module->about_to_exit_module();
    module->exit_module(); // Window, channel and versions must exist until here.
    delete module;
    loader.unload();
}
