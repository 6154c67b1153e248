#pragma once

#include "synccard.h"

#include <QList>

/** Synccards in the order in which they were added. The list owns its records and cannot be copied. */
class SynccardList
{
public:
    SynccardList() = default;
    ~SynccardList() { clear(); }
    Q_DISABLE_COPY(SynccardList)

    /** Appends \a card, which must be allocated with new, and takes ownership. */
    void add(Synccard* card) { synccards.append(card); }

    /** Deletes all records, so that every pointer to one of them becomes invalid. */
    void clear()
    {
        while (!synccards.isEmpty())
            delete synccards.takeFirst();
    }

    int size() const { return synccards.size(); }

    /** Returns the record at \a position, which must be in 0 to size() - 1. The list owns it. */
    Synccard* at(int position) const { return synccards.at(position); }

    /** Returns the first record with the id \a id, or null without a match. The list owns it. */
    Synccard* getSynccard(int id) const
    {
        for (Synccard* card : synccards) {
            if (card->id() == id)
                return card;
        }
        return nullptr;
    }

    bool hasSynccard(int id) const { return getSynccard(id) != nullptr; }

private:
    QList<Synccard*> synccards;
};
