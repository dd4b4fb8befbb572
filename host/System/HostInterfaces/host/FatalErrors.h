#ifndef host_FatalErrors_H
#define host_FatalErrors_H

namespace host {

// Who hears of a fatal error. Without a handler the text goes to standard error and the process aborts.
class FatalErrors {
  public:
    typedef void (*Handler)(const char* iText, const char* iFile, int iLine);
    // Gives the handler that was set before; null stands for the abort.
    static Handler SetHandler(Handler iHandler);
};

} // namespace host

#endif
