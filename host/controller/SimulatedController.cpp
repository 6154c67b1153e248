#include "SimulatedController.h"

#include "ControllerVocabulary.h"

#include <QtMath>

#include <algorithm>

static constexpr double minimumFrequencyHz = 10.0; // of every card's internal source
static constexpr int shownDigits = 12;             // of a number that was written

bool SimulatedController::execute(Operation operation, const QByteArray& command, QByteArray* answer)
{
    const Request request(operation, command);
    if (!request.parameter || !request.parameter->isKnownTo(current.identity.protocol))
        return false;
    const AnswerRow* row = current.find(textOf(operation, command));
    if (!row && (request.isRaw || !request.isSet))
        row = current.find(command);
    if (row && (request.isRaw || !request.isSet)) {
        *answer = row->answer;
        return !row->isFailure;
    }
    if (request.isSet) {
        *answer = request.isRaw ? command : QByteArray();
        return write(request);
    }
    row = request.isRaw ? current.find(request.name) : nullptr;
    if (row)
        *answer = command + ' ' + row->answer;
    return row && !row->isFailure;
}

void SimulatedController::setTable(const ControllerTable& table)
{
    current = table;
    emit changed();
}

/** Writes a value. A row for this value decides first, then a row for every write of the parameter, then the rule. */
bool SimulatedController::write(const Request& request)
{
    const QByteArray set = textOf(Operation::Set, request.name);
    const AnswerRow* const ofValue = current.find(set + ' ' + request.value);
    const AnswerRow* const decisive = ofValue ? ofValue : current.find(set);
    const Rule rule = request.parameter->rule;
    bool isNumber = false;
    const double number = request.value.toDouble(&isNumber);
    isNumber = isNumber && (rule == Rule::Frequency || rule == Rule::Delay || rule == Rule::Divisor);
    if (isNumber && !qIsFinite(number))
        return false;
    if (decisive ? decisive->isFailure : !accepts(request))
        return false;
    current.insert({request.name, isNumber ? QByteArray::number(number, 'g', shownDigits) : request.value});
    if (rule == Rule::Source)
        followSource(request.name.mid(request.name.lastIndexOf(' ') + 1), request.value);
    emit changed();
    return true;
}

/** Returns true if the rule of the parameter accepts the value. */
bool SimulatedController::accepts(const Request& request) const
{
    const AnswerRow* const present = current.find(request.name);
    if (answerTo("config is_changeable") == "no" || !present || present->isFailure)
        return false;
    const QByteArray card = request.name.split(' ').value(2);
    const QByteArray& value = request.value;
    const QByteArray source = answerTo("synccard source " + card);
    bool isWhole = false;
    value.toInt(&isWhole);
    const auto isListed = [&](const AnswerRow& row) {
        return row.command.startsWith("synccard mode ") && !row.isFailure && row.answer == value;
    };
    switch (request.parameter->rule) {
    case Rule::Mode:
        return value == "none" || std::any_of(current.rows().begin(), current.rows().end(), isListed);
    case Rule::Source:
        return answerTo("synccard has_source " + card + ' ' + value) == "yes";
    case Rule::Frequency:
        return isBetween(value, minimumFrequencyHz, "synccard max_internal_frequency " + card);
    case Rule::Divisor:
        return isWhole && isBetween(value, 1, "synccard max_external_divisor " + card + ' ' + source);
    case Rule::Output:
        return value == "none" || answerTo("synccard has_output " + card + ' ' + source + ' ' + value) == "yes";
    case Rule::Delay:
        return isBetween(value, 0, "synccard max_output_delay " + card);
    case Rule::Flag:
        return value == "yes" || value == "no";
    case Rule::ReadOnly:
        break;
    }
    return false;
}

/** Returns true if \a value is a number in the range. A maximum that fails or is not a number does not limit. */
bool SimulatedController::isBetween(const QByteArray& value, double minimum, const QByteArray& maximumCommand) const
{
    bool isNumber = false;
    bool isLimit = false;
    const double number = value.toDouble(&isNumber);
    const double maximum = answerTo(maximumCommand).toDouble(&isLimit);
    return isNumber && number >= minimum && (!isLimit || !(number > maximum));
}

/** Lowers the divisor to the maximum of the new source. Sets an output that the source does not offer to "none". */
void SimulatedController::followSource(const QByteArray& card, const QByteArray& source)
{
    const QByteArray divisor = "synccard external_divisor " + card;
    const QByteArray maximum = answerTo("synccard max_external_divisor " + card + ' ' + source);
    bool isLimit = false;
    bool isNumber = false;
    if (answerTo(divisor).toDouble(&isNumber) > maximum.toDouble(&isLimit) && isNumber && isLimit)
        current.insert({divisor, maximum});
    const QByteArray name = "synccard output " + card;
    const QByteArray output = answerTo(name);
    if (!output.isEmpty() && answerTo("synccard has_output " + card + ' ' + source + ' ' + output) != "yes")
        current.insert({name, "none"});
}

/** Returns the answer in the row of \a command. Without a row, or if the command fails, returns an empty string. */
QByteArray SimulatedController::answerTo(const QByteArray& command) const
{
    const AnswerRow* row = current.find(command);
    return row && !row->isFailure ? row->answer : QByteArray();
}
