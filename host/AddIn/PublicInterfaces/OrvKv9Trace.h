#ifndef OrvKv9Trace_H
#define OrvKv9Trace_H

// The add-in's trace. A line has a channel, a level (1 the most important) and a text; where it goes and
// which levels are let through is set elsewhere. Null pointers count as empty texts.
class OrvKv9Trace {
  public:
    static void Print(char* iCategory, int iLevel, char* iText);
    // iFormat is a printf format for the arguments that follow.
    static void PrintV(char* iCategory, int iLevel, char* iFormat, ...);
};

#endif
