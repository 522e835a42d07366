// Any text for the reader of XML.
#include "reader_check.h"

const fuzz::Format &fuzz::tried_format = fuzz::xml;
const fuzz::Format &fuzz::other_format = fuzz::json;
