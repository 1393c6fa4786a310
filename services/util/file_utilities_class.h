#pragma once
// fileUtilitiesClass: the file facts the document list, the document
// properties dialog and the adding of links read, and the path helpers.
// Files are real files. Every fact comes from this thread's file-facts
// service (services/files): within one of its operations a file is asked
// once, and a share that stops answering is waited on for about a second.
//
// A file that can't be reached is no failure here: the operations give their
// "nothing" value (0 bytes, a Null date, False) and accessState tells why.
//
// Paths use the platform's separator, "/"; a backslash is an ordinary
// character of a name.

#include <cstdint>
#include <string>

#include "services/runtime/variant.h"

namespace qb {

// Why a path can or can't be reached, in the order the properties dialog
// explains it.
enum class FileAccessState {
  reachable,      // the path names an existing file or folder this user may read
  missingFile,    // the folder is there, the file is not
  missingFolder,  // the folder that should hold the file is not there
  accessDenied,   // a folder on the way may not be searched, or the file not read
  unreachable,    // the file system failed or did not answer in time (a dead share)
};

// The date kinds of getFileDate.
enum FileDateKind : int16_t {
  fileDateCreated = 0,
  fileDateLastAccessed = 1,
  fileDateLastModified = 2
};

class fileUtilitiesClass {
 public:
  // Size of the file in bytes. 0 for a file that can't be reached or a
  // folder; a file of 2 GiB or more reads as 2147483647, the largest count a
  // 32-bit result holds.
  int32_t getFileSize(const std::string& path) const;

  // A date of the file as a Date Variant (days since 30 December 1899):
  // kind 0 created, 1 last accessed, 2 last modified. With localTime True the
  // date is the machine's local time (the control always passes True), with
  // False universal time. Where the file system keeps no birth time, created
  // is the earliest of the status-change and modification times. A file that
  // can't be reached, or an unknown kind, gives Null, which Format shows as
  // an empty text.
  Variant getFileDate(const std::string& path, int16_t kind, bool localTime) const;

  // True for an existing file (a folder gives False).
  bool fileExists(const std::string& path) const;
  // True for an existing folder.
  bool folderExists(const std::string& path) const;
  // Why the path can or can't be reached; isFolder, when given, tells
  // whether a reachable path is a folder (read with the same query).
  FileAccessState accessState(const std::string& path, bool* isFolder = nullptr) const;
  // False when the file carries no write permission for anyone (the file's
  // read-only mark), or can't be reached. The test reads the file's mode, not
  // the caller's rights, so it tells the same for every user.
  bool isFileWritable(const std::string& path) const;
  // True when another program holds the file: an office suite's lock file
  // beside it (which also shows a file held by another workstation on a
  // share), a lock on it, or a process of this machine that has it open for
  // writing. See SystemFileFacts.
  bool isFileInUse(const std::string& path) const;

  // The folder path with exactly one ending separator, "/". "" gives "/".
  std::string addTrailingBackslash(const std::string& folder) const;
  // The extension with its dot, as written in the file name ("Letter.OMD"
  // gives ".OMD"); "" when the name has none. This is the text
  // docQuillboxDocumentClass::isMergeDocument takes.
  std::string getFileExtension(const std::string& path) const;
  // The folder part of a path, without an ending separator; "" when the
  // path has no folder part.
  std::string getFolderFromPath(const std::string& path) const;
  // The file name part of a path (after the last "/").
  std::string getFileNameFromPath(const std::string& path) const;
  // An absolute path with "." and ".." resolved and doubled separators
  // removed. Symbolic links stay as the user named them. "" stays "".
  std::string normalizeFilePath(const std::string& path) const;

  // This computer's network name; "" when the system does not tell it.
  std::string getComputerName() const;
  // A special folder of the signed-in user: 5 the documents folder by the XDG
  // rules (XDG_DOCUMENTS_DIR from the environment, else from
  // $XDG_CONFIG_HOME/user-dirs.dirs, else ~/Documents when it exists, else
  // the home folder). Other numbers give the home folder. The window handle
  // is not used on this platform.
  std::string getSpecialFolder(int64_t windowHandle, int32_t folderNumber) const;
};

}  // namespace qb
