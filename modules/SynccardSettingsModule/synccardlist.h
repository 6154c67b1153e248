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

    /** Appends \a card, allocated with new, and takes ownership. */
    void add(Synccard* card) { synccards.append(card); }

    /** Deletes all records; pointers handed out before are dead then. */
    void clear()
    {
        while (!synccards.isEmpty())
            delete synccards.takeFirst();
    }

    int size() const { return synccards.size(); }

    /** The record at \a position, which the caller has checked to lie in 0 to size() - 1. */
    Synccard* at(int position) const { return synccards.at(position); }

    /** The first record with the id \a id, still owned by the list; null when there is none. */
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
