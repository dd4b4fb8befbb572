#include "OrvKvError.h"

OrvKvError::~OrvKvError() = default;
