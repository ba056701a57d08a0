// ATTDEF.
#pragma once

#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"

/// What attributes and their definitions share beyond a text.
class OdDbAttributeText : public OdDbText {
  ODRX_DECLARE_MEMBERS(OdDbAttributeText);

 public:
  enum Flag : int { kInvisible = 1, kConstant = 2, kVerifiable = 4, kPreset = 8 };

  /// The name of the attribute.
  const OdString& tag() const { return m_attribute.tag; }
  /// Raises OdError(eInvalidInput) for an empty tag or one with blanks.
  void setTag(const OdString& tag);
  bool isInvisible() const { return m_attribute.flags & kInvisible; }
  void setInvisible(bool on) { setFlag(kInvisible, on); }
  bool isConstant() const { return m_attribute.flags & kConstant; }
  bool isVerifiable() const { return m_attribute.flags & kVerifiable; }
  bool isPreset() const { return m_attribute.flags & kPreset; }
  int flags() const { return m_attribute.flags; }
  int fieldLength() const { return m_attribute.fieldLength; }
  void setFieldLength(int length);
  /// The place belongs to the block and cannot be moved by itself.
  bool lockPositionInBlock() const { return m_attribute.lockPosition != 0; }
  void setLockPositionInBlock(bool lock);
  /// True if the text has several lines with formatting codes; they are shown in place of
  /// textString().
  bool isMTextAttribute() const { return !m_mtext.isNull(); }
  /// A copy of that text, or null.
  OdDbMTextPtr getMTextAttribute() const;
  /// Makes the attribute one with several lines; null makes it a plain one again.
  void setMTextAttribute(const OdDbMText* text);
  /// Of one with several lines, also changes these.
  void setTextString(const OdString& text) override;

  bool transformBy(const OdGeMatrix3d& transform) override;
  void worldDraw(OdGiWorldDraw& draw) const override;
  void assignFrom(const OdDbObject& other) override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  void dxfInEnd(OdDbDxfIn& in) override;
  void dxfOut(OdDbDxfOut& out) const override;

  /// What the file knows of an attribute.
  struct Data {
    OdString tag, prompt;
    int flags = 0, fieldLength = 0, lockPosition = 0, version = 0;
    bool hasKind = false; ///< the file tells whether there are several lines
  };

 protected:
  OdDbAttributeText();
  void setFlag(int bit, bool on);
  virtual const char* dxfSubclass() const = 0;
  virtual bool hasPrompt() const = 0;
  Data m_attribute;

 private:
  OdDbMTextPtr m_mtext;    ///< shared by copies: replaced, never changed
  bool m_embedded = false; ///< while reading
  int m_locksRead = 0;
  bool takeOwnTag(const OdDbDxfTag& tag, OdDbDxfIn& in);
};

/// The place and the look of a text that each insert of a block fills in for itself.
class OdDbAttributeDefinition : public OdDbAttributeText {
  ODDB_CONCRETE(OdDbAttributeDefinition, "ATTDEF")

  /// What the user is asked.
  const OdString& prompt() const { return m_attribute.prompt; }
  void setPrompt(const OdString& prompt);
  void setConstant(bool on) { setFlag(kConstant, on); }
  void setVerifiable(bool on) { setFlag(kVerifiable, on); }
  void setPreset(bool on) { setFlag(kPreset, on); }

  /// Shows the tag; the value is shown by the attributes.
  void worldDraw(OdGiWorldDraw& draw) const override;

 protected:
  const char* dxfSubclass() const override { return "AcDbAttributeDefinition"; }
  bool hasPrompt() const override { return true; }
};
using OdDbAttributeDefinitionPtr = OdSmartPtr<OdDbAttributeDefinition>;
