#pragma once

#include <QMetaType>
#include <QtGlobal>

/**
 * The host's command channel to the tracking controller. These are the operations that modules call; a real host's own
 * header has further ones between them, so that a plug-in must be built against the headers of the host that loads it.
 *
 * The host owns it, hands a pointer to every module ("CommandManager") and keeps it alive until
 * ModuleInterface::exit_module() has returned. Modules call it on the GUI thread only; every call blocks until the
 * controller has answered or the channel has given up. Waiting, time-outs and connection loss are the channel's
 * business.
 *
 * The six formatting operations build their command like printf, with a decimal point whatever the user's locale,
 * and return 0 on success and anything else on failure; after a failure neither answer nor result may be used.
 * A parameter command is a name with its qualifiers ("synccard source d01"): the channel adds the get or set framing.
 *
 * Answer buffers belong to the caller and carry no size. The channel writes a terminated Latin-1 text of at most
 * 200 characters, the terminator included; at most 16 for the text read of "synccard has_input_frequency" and at
 * most 100 for "synccard output d01". A longer answer must fail.
 */
class IOManager
{
public:
    virtual ~IOManager() = default;

    /** Sends the raw command line and writes the controller's whole reply line into \a answer. */
    virtual int sendCommand(char* answer, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter and writes its value, as text, into \a answer. */
    virtual int getParameter(char* answer, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter as a signed 32-bit integer. */
    virtual int getParameterInt(int* result, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter as a double. */
    virtual int getParameterDouble(double* result, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter as a flag. */
    virtual int getParameterBool(bool* result, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Sets the parameter; the formatted text is its name, its qualifiers and the new value. */
    virtual int setParameter(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3) = 0;

    /**
     * Hands an error message to the host; \a message is a finished Latin-1 text, not a format. The meaning of
     * message class, originating system and display flag belongs to the host. It returns without running an event
     * loop: a box inside it would let the next poll in, and must not end the module.
     */
    virtual void reportError(const char* category, const char* systemTag, int flag, const char* message) = 0;
};

Q_DECLARE_METATYPE(IOManager*)
