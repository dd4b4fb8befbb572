# The notifications through which the panels tell the command what the user did.
BUILT_OBJECT_TYPE = SHARED LIBRARY

LINK_WITH = JS0GROUP \
            JS0FM \
            KnowledgeItf \
            OrvKv9ViewBase
