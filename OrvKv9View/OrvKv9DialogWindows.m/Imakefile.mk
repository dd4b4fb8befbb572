# The main panel and the other dialogs.
BUILT_OBJECT_TYPE = SHARED LIBRARY

LINK_WITH = JS0GROUP JS0FM DI0PANV2 CATApplicationFrame KnowledgeItf \
            OrvKv9Base OrvKv9ViewBase OrvKv9Notifications OrvKv9SubFrames
