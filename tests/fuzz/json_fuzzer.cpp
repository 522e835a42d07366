// Any text for the reader of JSON.
#include "reader_check.h"

const fuzz::Format &fuzz::tried_format = fuzz::json;
const fuzz::Format &fuzz::other_format = fuzz::xml;
