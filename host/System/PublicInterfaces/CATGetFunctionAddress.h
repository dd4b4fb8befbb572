#ifndef CATGetFunctionAddress_H
#define CATGetFunctionAddress_H

// A library that was found while a function was looked up. Not owned by the caller.
struct CATLibraryHandle {
    const void* library = nullptr; // null when the library is not there
};

// Address of a function of another library, looked up by name at run time.
typedef void (*CATFunctionAddress)();

// The address of iEntry in iLibrary, or null. oLibrary, which may be null, gets the library. The other
// arguments select variants that no library here has; they are accepted and change nothing.
CATFunctionAddress CATGetFunctionAddress(const char* iLibrary, const char* iEntry, const char* iThird,
                                         int iFirstOption, int iSecondOption, int iThirdOption,
                                         CATLibraryHandle* oLibrary);

#endif
