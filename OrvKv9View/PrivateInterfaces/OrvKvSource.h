#ifndef OrvKvSource_H
#define OrvKvSource_H

// A place in the library's sources: module folder, "src" and class name, and the line.
//
// Each source file names itself once and then says OrvKvHere where it returns a result:
//
//     static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvTypeSub";
//     return OrvKvReport::Success(OrvKvHere);
struct OrvKvSource {
    const char* file; // lives as long as the process
    int line;         // from 1
};

#define OrvKvHere (OrvKvSource{SourceFile, __LINE__})

#endif
