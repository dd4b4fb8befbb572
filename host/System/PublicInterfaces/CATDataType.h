#ifndef CATDataType_H
#define CATDataType_H

// Elementary types of the platform. Visibility, sensitivity, style and mode values travel as CATULong.

typedef unsigned long CATULong;
typedef int CATBoolean;

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

#endif
