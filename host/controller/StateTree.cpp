#include "StateTree.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Edit
{
    QString place;
    QString entered;
};

/** \a place with \a name, a key or an entry's number: "cards", "1" and "channels" make "cards 1, channels". */
QString placeIn(const QString& place, const QString& name)
{
    return place.isEmpty() ? name : place + (name.toUInt() > 0 ? " " : ", ") + name;
}

/**
 * Visits a record or a list: gives its fields the values of one JSON object, or of an edit, and adds them to a tree. A
 * list is visited like a record whose keys are the entries' numbers. The first fault is kept in the shared error.
 */
class Exchange
{
public:
    Exchange(const QJsonValue& json, const Edit& edit, StateNode* node, QString* error)
        : object(json.toObject()), edit(edit), node(node), error(error)
    {
        refuse(node->place, json.isObject() || json.isUndefined() ? QString() : "an object is expected");
    }

    void field(const FieldRule& rule, QString& text) { text = next(rule, text).toString(); }
    void field(const FieldRule& rule, bool& flag) { flag = next(rule, flag).toBool(); }
    void field(const FieldRule& rule, double& number) { number = next(rule, number).toDouble(); }
    void field(const FieldRule& rule, int& number) { number = next(rule, number).toInt(); }
    void field(const FieldRule& rule, VersionInfo& version)
    {
        version.fromString(next(rule, version.toString()).toString());
    }

    void field(const FieldRule& rule, QStringList& texts)
    {
        visitList(rule.key, texts, [&](Exchange& all, const QString& number, QString& text) {
            FieldRule entryRule = rule;
            entryRule.key = number;
            all.field(entryRule, text);
        });
    }

    template <typename Entry, typename Owner>
    void list(const QString& key, QVector<Entry>& entries, const Owner& owner, QString Entry::*identity = nullptr)
    {
        QStringList identities;
        visitList(key, entries, [&](Exchange& all, const QString& number, Entry& entry) {
            Exchange record(all.object.take(number), edit, all.append(number, {}, QJsonValue::Undefined), error);
            describe(record, entry, owner);
            record.refuseRest();
            if (identity && identities.contains(entry.*identity))
                refuse(record.node->place, QString("another entry is \"%1\" already").arg(entry.*identity));
            if (identity)
                identities.append(entry.*identity);
        });
    }

    /** To be called when all fields are visited: what is left is unknown. */
    void refuseRest()
    {
        for (auto it = object.constBegin(); it != object.constEnd(); ++it)
            refuse(placeIn(node->place, it.key()), "unknown entry");
    }

private:
    StateNode* append(const QString& name, const FieldRule& rule, const QJsonValue& value, bool isList = false)
    {
        node->children.append({name, placeIn(node->place, name), rule, value, isList});
        return &node->children.last();
    }

    /** The value that a field gets, which has the value \a current. */
    QJsonValue next(const FieldRule& rule, const QJsonValue& current)
    {
        const QString place = placeIn(node->place, rule.key);
        QJsonValue value = object.contains(rule.key) ? object.take(rule.key) : current;
        if (place == edit.place)
            value = rule.parse(edit.entered);
        refuse(place, rule.refusal(value));
        append(rule.key, rule, value);
        return value;
    }

    template <typename Entries, typename VisitEntry>
    void visitList(const QString& key, Entries& entries, VisitEntry visitEntry)
    {
        StateNode* listNode = append(key, {}, QJsonValue::Undefined, true);
        QJsonObject numbered;
        if (object.contains(key)) {
            const QJsonValue json = object.take(key);
            refuse(listNode->place, json.isArray() ? QString() : "a list is expected");
            entries.clear();
            const QJsonArray array = json.toArray();
            for (const auto& entry : array) {
                entries.append(typename Entries::value_type());
                numbered.insert(QString::number(entries.size()), entry);
            }
        }
        Exchange visit(numbered, edit, listNode, error);
        for (int i = 0; i < entries.size(); ++i)
            visitEntry(visit, QString::number(i + 1), entries[i]);
    }

    /** Keeps the reason, if there is one and it is the first. */
    void refuse(const QString& place, const QString& reason)
    {
        if (error->isEmpty() && !reason.isEmpty())
            *error = place.isEmpty() ? reason : place + ": " + reason;
    }

    QJsonObject object;
    const Edit& edit;
    StateNode* node;
    QString* error;
};

/** Gives \a state the values of \a json and of the edit, unless one is refused, and makes the tree of what it is then.
 */
QString exchange(const QJsonValue& json, const Edit& edit, ControllerState* state, StateNode* root)
{
    ControllerState changed = *state;
    QString reason;
    Exchange visit(json, edit, root, &reason);
    describe(visit, changed);
    visit.refuseRest();
    if (reason.isEmpty())
        *state = changed;
    return reason.simplified();
}

} // namespace

QJsonValue StateNode::toJson() const
{
    QJsonArray array;
    QJsonObject object;
    for (const StateNode& child : children) {
        if (isList)
            array.append(child.toJson());
        else
            object.insert(child.name, child.toJson());
    }
    return isField() ? value : isList ? QJsonValue(array) : QJsonValue(object);
}

QStringList StateNode::toLines() const
{
    QStringList lines;
    if (isField())
        lines.append(place + ": " + value.toVariant().toString());
    for (const StateNode& child : children)
        lines += child.toLines();
    return lines;
}

StateNode toTree(ControllerState state)
{
    StateNode root;
    exchange(QJsonValue::Undefined, {}, &state, &root);
    return root;
}

QString readState(const QJsonValue& json, ControllerState* state)
{
    StateNode root;
    return exchange(json, {}, state, &root);
}

QString editField(const QString& place, const QString& entered, ControllerState* state)
{
    StateNode root;
    return exchange(QJsonValue::Undefined, {place, entered}, state, &root);
}
