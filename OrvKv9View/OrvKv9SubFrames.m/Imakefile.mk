# The sub-panels, the tab container and the swap frame.
BUILT_OBJECT_TYPE = SHARED LIBRARY

LINK_WITH = JS0GROUP JS0FM DI0PANV2 CATVisualization KnowledgeItf \
            OrvKv9Base OrvKv9ViewBase OrvKv9Notifications
