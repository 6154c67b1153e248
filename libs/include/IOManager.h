#pragma once

#include <QMetaType>
#include <QtGlobal>

/**
 * The host's command channel to the tracking controller. This header declares the operations that modules call. The
 * header of a real host declares further operations between them, so build a plug-in against the headers of the host
 * that loads it.
 *
 * The host owns the channel, hands a pointer to it to every module ("CommandManager") and keeps it alive until
 * ModuleInterface::exit_module() has returned. Modules call the channel on the GUI thread only. Every call blocks until
 * the controller answers or the channel gives up. Only the channel handles waiting, time-outs and lost connections.
 *
 * The six formatting operations build their command like printf, with a decimal point whatever the user's locale.
 * They return 0 on success and any other number on failure. After a failure the caller uses neither answer nor result.
 * A parameter command is a name with its qualifiers ("synccard source d01"). The channel adds the get or set framing.
 *
 * Any operation may run an event loop, to wait for the answer or to show a box. While an operation runs, a module
 * starts nothing that sends commands. Inside an operation, the host must not end the module or delete its parent
 * widget. Otherwise the code that called the operation might be unloaded before the operation returns.
 *
 * Answer buffers belong to the caller and carry no size. The channel writes a terminated Latin-1 string of at
 * most 200 characters, including the terminator. The limit is 16 for getParameter() of "synccard has_input_frequency"
 * and 100 for "synccard output d01". A longer answer is a failure.
 */
class IOManager
{
public:
    virtual ~IOManager() = default;

    /** Sends the raw command line and writes the controller's whole reply line into \a answer. */
    virtual int sendCommand(char* answer, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter and writes its value into \a answer as a string. */
    virtual int getParameter(char* answer, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter as a signed 32-bit integer. */
    virtual int getParameterInt(int* result, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter as a double. */
    virtual int getParameterDouble(double* result, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Reads the parameter as a flag. */
    virtual int getParameterBool(bool* result, const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(3, 4) = 0;

    /** Sets the parameter. The formatted string is its name, its qualifiers and the new value. */
    virtual int setParameter(const char* format, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3) = 0;

    /**
     * Hands an error message to the host. \a message is a finished Latin-1 string, not a format. The host decides what
     * \a category, \a systemTag (the system that reports) and the display flag \a flag mean.
     */
    virtual void reportError(const char* category, const char* systemTag, int flag, const char* message) = 0;
};

Q_DECLARE_METATYPE(IOManager*)
