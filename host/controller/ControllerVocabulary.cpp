#include "ControllerVocabulary.h"

#include "WireText.h"

#include <QVector>

#include <algorithm>

namespace {

// A new controller command needs a row here.
const Parameter parameters[] = {
    {"config is_changeable", 1, 9, Rule::ReadOnly},
    {"synccard available", 0, 8, Rule::ReadOnly},
    {"synccard has_input_frequency", 0, 8, Rule::ReadOnly},
    {"synccard input_frequency", 0, 8, Rule::ReadOnly},
    {"synccard synccard", 0, 8, Rule::ReadOnly},
    {"synccard number_of_modes", 0, 8, Rule::ReadOnly},
    {"synccard mode tNN", 0, 8, Rule::ReadOnly},
    {"synccard mode_desc WORD", 0, 8, Rule::ReadOnly},
    {"synccard active_mode", 0, 8, Rule::Mode},
    {"synccard number_of_synccards", 0, 13, Rule::ReadOnly},
    {"synccard synccard dNN", 0, 13, Rule::ReadOnly},
    {"synccard model_desc WORD", 0, 13, Rule::ReadOnly},
    {"synccard has_source dNN WORD", 0, 13, Rule::ReadOnly},
    {"synccard source dNN", 0, 13, Rule::Source},
    {"synccard max_internal_frequency dNN", 1, 5, Rule::ReadOnly},
    {"synccard internal_frequency dNN", 0, 13, Rule::Frequency},
    {"synccard max_external_divisor dNN WORD", 0, 13, Rule::ReadOnly},
    {"synccard external_divisor dNN", 0, 13, Rule::Divisor},
    {"synccard has_output dNN WORD WORD", 1, 23, Rule::ReadOnly},
    {"synccard output dNN", 1, 23, Rule::Output},
    {"synccard number_of_channels dNN", 0, 13, Rule::ReadOnly},
    {"synccard max_output_delay dNN", 0, 13, Rule::ReadOnly},
    {"synccard output_delay dNN chNN", 0, 13, Rule::Delay},
    {"synccard output_during_idle dNN chNN", 0, 13, Rule::Flag},
};

QVector<QByteArrayList> splitForms()
{
    QVector<QByteArrayList> forms;
    for (const Parameter& parameter : parameters)
        forms.append(QByteArray(parameter.form).split(' '));
    return forms;
}

/** Returns true if \a word of a command matches \a part of a form, as "d01" matches "dNN". */
bool isPart(const QByteArray& part, const QByteArray& word)
{
    bool isNumber = false;
    if (part.endsWith("NN") && word.startsWith(part.chopped(2)))
        word.mid(part.size() - 2).toUInt(&isNumber);
    return part == word || part == "WORD" || isNumber;
}

} // namespace

Request::Request(Operation operation, const QByteArray& command)
    : isRaw(operation == Operation::Send), isSet(operation == Operation::Set || command.startsWith("zorvan2 set "))
{
    static const QVector<QByteArrayList> forms = splitForms();
    if (isRaw && !isSet && !command.startsWith("zorvan2 get "))
        return;
    const QByteArrayList words = command.split(' ').mid(isRaw ? 2 : 0);
    for (int i = 0; i < forms.size() && !parameter; ++i) {
        const QByteArrayList& form = forms.at(i);
        if (words.size() < form.size() || !std::equal(form.begin(), form.end(), words.begin(), isPart))
            continue;
        // The last word of a read may contain blanks: it may be an answer that the module passes on.
        const int size = !isSet && form.last() == "WORD" ? words.size() : form.size();
        if (size < words.size() && !isSet)
            continue;
        parameter = &parameters[i];
        name = words.mid(0, size).join(' ');
        value = words.mid(size).join(' ');
    }
}

QString unknown(const QByteArray& name, const QByteArrayList& known)
{
    const auto alike = [&](const QByteArray& other) {
        return std::mismatch(name.begin(), name.end(), other.begin(), other.end()).first - name.begin();
    };
    const auto isLess = [&](const QByteArray& a, const QByteArray& b) { return alike(a) < alike(b); };
    const QByteArray nearest = *std::max_element(known.begin(), known.end(), isLess);
    return QString(R"("%1" is unknown. The nearest is "%2".)").arg(escaped(name), QString(nearest));
}

QString commandFault(const QByteArray& command)
{
    const QByteArray word = command.left(command.indexOf(' '));
    const QByteArray bare = isOperation(word) ? command.mid(word.size() + 1) : command;
    const bool isRaw = bare.startsWith("zorvan2 ");
    const Operation operation = isRaw ? Operation::Send : word == "set" ? Operation::Set : Operation::Get;
    if (Request(operation, bare).parameter)
        return {};
    const QByteArray verb = isRaw ? bare.left(static_cast<int>(qstrlen("zorvan2 get "))) : "";
    QByteArrayList forms = {"description", "from", "protocol", "model"};
    for (const Parameter& parameter : parameters)
        forms.append(verb + parameter.form);
    return "parameter " + unknown(bare, forms);
}
