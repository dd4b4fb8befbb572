#ifndef OrvKvForward_H
#define OrvKvForward_H

#include "CATError.h"
#include "OrvKvReport.h"

// Hands a call on to a panel further down. A panel that is not there and a call that fails are reported with
// iMessage; the error object that the call left is kept.
//
//     return OrvKvForward(_pThreadSub, "Error in setting the thread type.", OrvKvHere,
//                         [&](OrvKvThreadSub& ioThread) { return ioThread.SetThreadTypes(iTypes, 0, 0); });
template<class Panel, class Call>
long OrvKvForward(Panel* iPanel, const char* iMessage, const OrvKvSource& iWhere, Call iCall) {
    if (iPanel == nullptr)
        return OrvKvReport::Failure(iMessage, iWhere);
    const long result = iCall(*iPanel);
    return FAILED(result) ? OrvKvReport::FailureAfter(result, iMessage, iWhere)
                          : OrvKvReport::Success(iWhere);
}

#endif
