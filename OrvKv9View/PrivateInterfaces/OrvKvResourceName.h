#ifndef OrvKvResourceName_H
#define OrvKvResourceName_H

// Names the resource file of a panel after its class, and leaves higher levels to the base class. In one
// source file, for a class that declares `char* GetResourceFilename(int iLevel) const override;`.
#define OrvKvImplementResourceName(iClass, iBase)                                                            \
    char* iClass::GetResourceFilename(int iLevel) const {                                                    \
        static char name[] = #iClass;                                                                        \
        return iLevel <= 0 ? name : iBase::GetResourceFilename(iLevel - 1);                                  \
    }                                                                                                        \
    static_assert(true, "the semicolon after the macro")

#endif
