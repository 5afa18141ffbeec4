#pragma once

#include <string>

#include "core/Reading.h"
#include "core/Snapshot.h"

// Files and folders, for the faces that read them by name.

namespace Velmar {
namespace Files {

using Core::Expected;

/// The bytes of a file, at most as many as an input may have. The caller names the file in the fault.
Expected<std::string> readFile(const std::string& path);
/// The same of an open file.
Expected<std::string> readAll(int descriptor);

/// Whether there is a file or folder of that name.
bool exists(const std::string& path);
/// Whether there is a folder of that name: a snapshot, if it has a manifest.
bool isFolder(const std::string& path);
/// The manifest of a folder.
Expected<Core::Snapshot> readManifest(const std::string& folder);
/// A dump of a snapshot. No link is followed: the dump is in the folder.
Expected<std::string> readInside(const std::string& folder, const std::string& file);
/// The name of a file in a folder.
std::string pathIn(const std::string& folder, const std::string& file);

}  // namespace Files
}  // namespace Velmar
