// Compiled with nothing but the target OrvKv9View: its users see the exported headers and the platform's.

#if !__has_include("OrvKvPrompt.h") || !__has_include("CATDlgFrame.h") || !__has_include("CATICkeParm.h")
#error "an exported or platform header is not seen"
#endif
#if __has_include("OrvKvReport.h") || __has_include("OrvKvGuard.h") || __has_include("OrvKvOutPointers.h")
#error "a header of the modules is seen outside the library"
#endif
#if __has_include("host/Trace.h") || __has_include("host/DialogUser.h")
#error "a header of the host beyond the platform is seen"
#endif
