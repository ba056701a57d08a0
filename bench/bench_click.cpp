// From a click to the typed command, in catalogs of different size.
#include "bench/ratio_report.h"
#include "bench/sample_catalog.h"
#include "catalog/tool.h"
#include "support/test_host.h"
#include "tools/tool_guard.h"
