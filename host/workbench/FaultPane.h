#pragma once

class DevelopmentHost;
class QWidget;

/**
 * Returns a widget that sets which commands fail, and how much longer each takes. A valid value is active as soon as it
 * is typed. The widget does not own \a host.
 */
QWidget* createFaultPane(DevelopmentHost* host);
