# Error reporting, guarded blocks and the prompt: what all panels share.
BUILT_OBJECT_TYPE = SHARED LIBRARY

LINK_WITH = JS0GROUP \
            JS0FM \
            DI0PANV2 \
            CATApplicationFrame \
            OrvKv9Base
