#ifndef OrvKvPrompt_H
#define OrvKvPrompt_H

class CATError;
class CATUnicodeString;

// Shows errors and warnings to the user and waits for the answer.
//
//     long result = panel->SetGroups(groups);
//     if (FAILED(result))
//         OrvKvPrompt::Error(result);
//
// Nothing here raises. Where memory for the message window is short nothing is shown. There is nothing to
// copy: all operations are static.
struct OrvKvPrompt {
    // Shows the message of iError, or the diagnostic alone of an update error of the modeler, under the
    // error's source as title. Takes the caller's reference of iError over. A null error is traced instead.
    static void Error(CATError* iError);

    // Shows the error behind a failing result, then forgets it. Nothing happens for a success and for a
    // failure without an error object.
    static void Error(long iRC);

    // Shows iText as a warning. An empty text is traced instead.
    static void Warning(const CATUnicodeString& iText);
};

#endif
