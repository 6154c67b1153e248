#pragma once

#include "synccard.h"

#include <QList>

/** Synccards in the order they were added. The list owns its records; it is not copied. */
class SynccardList
{
public:
    SynccardList() = default;
    ~SynccardList() { clear(); }
    Q_DISABLE_COPY(SynccardList)

    /** Appends \a card and takes ownership; it must be allocated with new. */
    void add(Synccard* card) { synccards.append(card); }

    /** Deletes all records, so that every pointer to one of them becomes invalid. */
    void clear()
    {
        while (!synccards.isEmpty())
            delete synccards.takeFirst();
    }

    int size() const { return synccards.size(); }

    /** The record at \a position, which must be in 0 to size() - 1. The list keeps it. */
    Synccard* at(int position) const { return synccards.at(position); }

    /** The first record with the id \a id, which the list keeps; null when there is none. */
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
