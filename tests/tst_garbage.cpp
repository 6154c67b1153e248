#include "SessionRun.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTableWidget>

/** Openings connected to a controller that answers garbage, with a hasty user. Each opening has a seed of its own. */
class TestGarbage : public QObject
{
    Q_OBJECT

private slots:
    void survives();
};

namespace {

constexpr int openingsOfADialog = 20;

int seed = 0; // of the opening that runs

void printSeed()
{
    const int before = seed % openingsOfADialog;
    static_cast<void>(
        fprintf(stderr, "to run this opening and those before it: ./dev fuzz %d %d\n", before + 1, seed - before));
}

/** Random answers that fit the module's buffers. */
class Garbage
{
public:
    bool answer(Operation operation, const QByteArray& command, QByteArray* answer)
    {
        *answer = operation == Operation::Int || operation == Operation::Double ? number() : text();
        if (command == "synccard available" && random.bounded(10) > 0)
            *answer = "yes";
        return random.bounded(200) > 0;
    }

    /** Runs an event loop at times, like a channel that waits for an answer and a host that reports. */
    void runEventLoop()
    {
        QVERIFY(!isAsked);
        isAsked = true;
        if (random.bounded(4) == 0)
            QCoreApplication::processEvents();
        isAsked = false;
    }

    template <typename Value>
    Value anyOf(const QVector<Value>& values)
    {
        return values.at(random.bounded(values.size()));
    }

    QRandomGenerator random;
    bool isAsked = false; // a command or a report is under way

private:
    QByteArray text()
    {
        QByteArray bytes(anyOf<int>({1, 15, 99, 199, random.bounded(200)}), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random.bounded(1, 256));
        return anyOf<QByteArray>({"yes", "yes", "yes", "no", "internal", "video", "a b c d none", "0x0301 7", "", " ",
                                  "direct settings", R"(x "a" b)", R"(""")", "%n%s%1%2%99", "<b><img src=x>", bytes,
                                  bytes});
    }

    QByteArray number()
    {
        if (random.bounded(100) > 0)
            return anyOf<QByteArray>({"0", "1", "2", "3", "0.25", "60"});
        return anyOf<QByteArray>({"-1", "999", "2147483647", "-2147483648", "99999999999", "nan", "inf", "-inf",
                                  "1e308", "-1e305", "1e-320", text()});
    }
};

/** Checks that written values and reports are printable, and numbers finite. Returns the number of writes. */
int checkWritten(ScriptedController* link)
{
    static const QRegularExpression wrong(
        "^set (?!synccard active_mode ).*(nan|inf|[^ -~])|^(?!Error: Unable to )[A-Z]");
    const QByteArrayList texts = link->commands + link->reports;
    link->restart(link->table());
    QStringList found;
    for (const QByteArray& text : texts)
        found.append(text);
    if (!found.filter(wrong).isEmpty())
        QTest::qFail(qPrintable(found.filter(wrong).join(", ")), __FILE__, __LINE__);
    return found.filter(QRegularExpression("^set ")).size();
}

/** Carries out hasty actions of a user or a host. */
void actAtRandom(LoadedModule& module, Garbage* garbage)
{
    const QVector<QByteArray> lists = {"modes Down", "modes Down", "source Down", "source Up", "output Down"};
    const QVector<QByteArray> others = {"key doubleSpinBox_frequency Up", "click 0 2", "activate", "poll"};
    const QVector<QByteArray> seldom = {"leave OK", "leave OK", "leave OK", "leave Cancel", "hide", "done 0"};
    for (int i = 0; i < 4 && (module.dialog()->isVisible() || garbage->isAsked); ++i) {
        const QByteArray key = "key comboBox_" + garbage->anyOf(lists);
        act(module, garbage->random.bounded(3) > 0 ? key : garbage->anyOf(others));
    }
    if (module.dialog()->isVisible() && garbage->random.bounded(4) == 0)
        act(module, garbage->anyOf(seldom));
}

void openAtRandom(LoadedModule& module, Garbage* garbage, QMap<int, int>* results)
{
    garbage->random.seed(static_cast<quint32>(seed));
    module.versions = backend(garbage->anyOf<QString>({"0.9", "1.4", "1.10 QUILLSTONE", "newest", "newest"}));
    int result = -3;
    QMetaObject::invokeMethod(module.dialog(), "update_and_exec", Q_RETURN_ARG(int, result));
    ++(*results)[result];
    QVERIFY(!module.dialog()->isVisible());
    QVERIFY(module.find<QTableWidget>("tableWidget_channels")->rowCount() <= 999);
}

} // namespace

/** FUZZ_OPENINGS and FUZZ_SEED, set by ./dev fuzz, ask for more openings and for other garbage. */
void TestGarbage::survives()
{
    const int openings =
        qEnvironmentVariableIsSet("FUZZ_OPENINGS") ? qEnvironmentVariableIntValue("FUZZ_OPENINGS") : 3000;
    Garbage garbage;
    LoadedModule module;
    module.link.answering = [&](Operation operation, const QByteArray& command, QByteArray* answer) {
        return garbage.answer(operation, command, answer);
    };
    module.link.during = [&](const QByteArray&) { garbage.runEventLoop(); };
    int written = 0;
    QTimer hands;
    connect(&hands, &QTimer::timeout, this, [&] { actAtRandom(module, &garbage); });
    hands.start(0);
    QMap<int, int> results;
    seed = qEnvironmentVariableIntValue("FUZZ_SEED");
    const int first = seed;
    for (; seed < first + openings && !QTest::currentTestFailed(); ++seed) {
        if (seed == first || seed % openingsOfADialog == 0) {
            module.loader.module()->exit_module();
            module.element = module.loader.module()->get_gui_elements().first();
        }
        openAtRandom(module, &garbage, &results);
        written += checkWritten(&module.link);
    }
    --seed;
    if (QTest::currentTestFailed())
        return printSeed();
    if (openings < 1000)
        return;
    QCOMPARE(results.keys(), QList<int>({-1, QDialog::Rejected, QDialog::Accepted}));
    QVERIFY2(written > openings / 2, qPrintable(QString::number(written)));
}

QTEST_MAIN(TestGarbage)
#include "tst_garbage.moc"
