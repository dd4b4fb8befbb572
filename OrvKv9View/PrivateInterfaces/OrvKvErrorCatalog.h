#ifndef OrvKvErrorCatalog_H
#define OrvKvErrorCatalog_H

// The message catalogue of the library's errors and the keys in it.

static constexpr const char* OrvKvErrorCatalog = "OrvKv_ErrorCatalog";

// The key of every error that the library makes itself; /p1 is the message.
static constexpr const char* OrvKvErrorKeyUnknownError = "Error_UnknownError";
// Reserved: no panel makes an error with one of these keys. Errors with the first two are raised by OrvKvErr,
// where /p1 of the description is its text.
static constexpr const char* OrvKvErrorKeyDescription = "Error_Description";
static constexpr const char* OrvKvErrorKeyNoInterface = "Error_NoInterface";
static constexpr const char* OrvKvErrorKeyNotImplemented = "Error_NotImplemented";
static constexpr const char* OrvKvErrorKeyInvalidFeatureId = "Error_InvalidFeatureId";

#endif
