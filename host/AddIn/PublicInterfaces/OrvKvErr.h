#ifndef OrvKvErr_H
#define OrvKvErr_H

class CATUnicodeString;

// Raises errors inside guarded blocks. No operation returns.
class OrvKvErr {
  public:
    // Raises the error attached to a failing code. When the code has none: a fresh "Error_UnknownError" that
    // says in the user's language that no reason is known.
    [[noreturn]] static void Throw(long iRC);
    // Raises "Error_NoInterface" of the add-in's error catalogue.
    [[noreturn]] static void Throw_NoInterface();
    // Raises "Error_Description" of the add-in's error catalogue with the text as its parameter.
    [[noreturn]] static void Throw_Description(const CATUnicodeString& iText);
};

#endif
