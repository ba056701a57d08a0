// The clipboard of a program without windows.
#pragma once

#include "host/clipboard.h"

namespace drafton {

/// Keeps what is copied for as long as the program runs. A program with windows offers the system's
/// in its place. A temporary drawing that nobody has asked for goes with what replaces it, and with
/// the program; one that was asked for stays, since a tool that was made of it brings it in.
class Clipboard : public CKVUnknownImpl<IHostClipboard> {
 public:
  ~Clipboard() override { dropUntaken(); }

  int registerFormat(const OdString& name) override;
  QByteArray data(int format) override;
  void setData(int format, const QByteArray& bytes) override;

 private:
  void dropUntaken() const;

  QStringList m_formats; ///< a format's number is its place, counted from 1
  int m_format = 0;
  QByteArray m_bytes;
  bool m_isTaken = false;
};

} // namespace drafton
