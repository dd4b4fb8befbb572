#ifndef CATFatalError_H
#define CATFatalError_H

// Stops the application because it cannot go on. iFile and iLine tell where.
void CATFatalError(const char* iText, const char* iFile, int iLine);

#endif
