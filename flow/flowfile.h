// The .flow files: where they live, how a flow is written and read.
#pragma once

#include <QString>

namespace FlowFile {

// Home + "/" + application name + "/Flows/", created when missing.
QString flowsFolder();

// Copies ":/sample.flow" into the flows folder unless a file of that name is already there.
bool installSampleFlow();

} // namespace FlowFile
