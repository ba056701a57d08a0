// The clipboard, by the names of formats.
#pragma once

#include "frame/string.h"
#include "host/unknown.h"

#include <QByteArray>

/// What programs hand to one another. The contents stand there in several formats at once, and a
/// new one takes the place of all that was there.
class IHostClipboard : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kId = "IHostClipboard";

  /// The number of a format, which is made known to the system if it is new: the same for everybody
  /// that asks for the name.
  virtual int registerFormat(const OdString& name) = 0;
  /// What the clipboard holds in a format; empty if it has none.
  virtual QByteArray data(int format) = 0;
  /// Replaces everything on the clipboard by bytes in one format.
  virtual void setData(int format, const QByteArray& bytes) = 0;

 protected:
  ~IHostClipboard() = default;
};
