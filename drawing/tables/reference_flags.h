// The flags that files have for blocks which stand for other drawings.
#pragma once

/// A file says with one flag that a reference was resolved and with another that it is used. The
/// first decides: what has neither comes from a program that does not care, and is as good as
/// resolved; what is used and yet not resolved was unloaded by somebody.
namespace oddb {

enum ReferenceFlag : int {
  kReference = 4,
  kOverlayReference = 8,
  kResolvedReference = 32,
  kUsedReference = 64,
  kUntoldReference = 1 << 30, ///< the file says neither; never in files
};

inline bool isReference(int flags) { return flags & (kReference | kOverlayReference); }

/// The flags of a block as a file has them, for the block: resolved means that the other drawing is
/// to be shown.
inline int flagsFromFile(int flags) {
  flags &= ~kUntoldReference;
  const bool isUntold = isReference(flags) && !(flags & (kResolvedReference | kUsedReference));
  return isUntold ? flags | kResolvedReference | kUntoldReference : flags;
}

/// The flags of a block for a file: as they were read if nothing else was done.
inline int flagsForFile(int flags) {
  return flags & kUntoldReference ? flags & ~(kResolvedReference | kUntoldReference) : flags;
}

/// The flags of a reference that was unloaded, or is to be loaded again.
inline int withUnloaded(int flags, bool unloaded) {
  if (!unloaded) return flags | kResolvedReference;
  return (flags & ~(kResolvedReference | kUntoldReference)) | kUsedReference;
}

} // namespace oddb
