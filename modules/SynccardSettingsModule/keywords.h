#pragma once

#include <QCoreApplication>

/** One choice of a selector. Commands carry the keyword. The user sees the description, which the dialog translates. */
struct Choice
{
    const char* keyword;
    const char* description;
};

/** The sync sources, in the order of the selector. "ttlboth" is offered only from protocol 1.15 on. */
constexpr Choice syncSources[] = {
    {"internal", QT_TRANSLATE_NOOP("SynccardDialog", "internal generated signal")},
    {"video", QT_TRANSLATE_NOOP("SynccardDialog", "external video signal")},
    {"ttl", QT_TRANSLATE_NOOP("SynccardDialog", "external TTL signal")},
    {"ttlinv", QT_TRANSLATE_NOOP("SynccardDialog", "external inverted TTL signal")},
    {"ttlboth", QT_TRANSLATE_NOOP("SynccardDialog", "external TTL signal both edges")},
};

/** The sync outputs, in the order of the selector. The controller may also report "none", which is never offered. */
constexpr Choice syncOutputs[] = {
    {"video", QT_TRANSLATE_NOOP("SynccardDialog", "video")},
    {"ttl", QT_TRANSLATE_NOOP("SynccardDialog", "ttl")},
    {"ttlinv", QT_TRANSLATE_NOOP("SynccardDialog", "ttl inverted")},
};
