#include "drafton/engine/settings_store.h"

#include "drafton/engine/application.h"
#include "drafton/engine/profile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace drafton;

namespace {

class SettingsTest : public ::testing::Test {
 protected:
  OdString path() const { return m_folder.filePath(QStringLiteral("drafton.ini")); }
  void write(const QByteArray& bytes) const {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray bytes() const {
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
  }

  QTemporaryDir m_folder;
};

const QStringList kRoot;

class KeptValue : public SettingsTest, public ::testing::WithParamInterface<int> {};

const OdVariant kValues[] = {
    OdVariant(QStringLiteral("plain")),
    OdVariant(QStringLiteral("")),
    OdVariant(QStringLiteral("int:5")),
    OdVariant(QStringLiteral("a,b; c=\"d\" \\ %25 @x [y]")),
    OdVariant(QStringLiteral("line\nbreak\ttab\r%0A %25 %0 %")),
    OdVariant(QStringLiteral("\"quoted\"")),
    OdVariant(QStringLiteral(" blanks ")),
    OdVariant(QString::fromUtf8("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80")),
    OdVariant(true),
    OdVariant(std::uint8_t{200}),
    OdVariant(std::int16_t{-3}),
    OdVariant(std::int32_t{-2147483647}),
    OdVariant(std::int64_t{9000000000000000000}),
    OdVariant(0.1),
    OdVariant(),
};

TEST_P(KeptValue, IsReadBackWithItsKind) {
  const OdVariant& value = kValues[GetParam()];
  { SettingsStore(path()).set({QStringLiteral("a")}, QStringLiteral("key"), value); }
  OdVariant found(QStringLiteral("nothing"));
  ASSERT_TRUE(SettingsStore(path()).get({QStringLiteral("a")}, QStringLiteral("key"), found));
  EXPECT_EQ(found, value) << bytes().toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, KeptValue, ::testing::Range(0, static_cast<int>(std::size(kValues))));

struct HostileRow {
  const char* name;
  QByteArray bytes;
};

class HostileSettings : public SettingsTest, public ::testing::WithParamInterface<int> {};

const HostileRow kHostile[] = {
    {"text that is no settings", "this is a letter\nto somebody\n"},
    {"a cut line", "[General]\nToolPaletteDir=/a\nnonsense without sign\n"},
    {"an open section", "[General\nToolPaletteDir=/a\n"},
    {"zeros", QByteArray(5000, '\0')},
    {"noise", QByteArray("\x01\xFF\xFE\x00\x80[\x9Fzz\n\xC3(=\n]", 16)},
};

TEST_P(HostileSettings, AreReportedAndNeverWritten) {
  const HostileRow& row = kHostile[GetParam()];
  write(row.bytes);
  {
    SettingsStore store(path());
    EXPECT_TRUE(store.problem().contains(path())) << row.name;
    store.set(kRoot, QStringLiteral("key"), QStringLiteral("value"));
    OdVariant found;
    EXPECT_TRUE(store.get(kRoot, QStringLiteral("key"), found)) << "the run itself goes on";
  }
  EXPECT_EQ(bytes(), row.bytes) << row.name;
}

INSTANTIATE_TEST_SUITE_P(All, HostileSettings,
                         ::testing::Range(0, static_cast<int>(std::size(kHostile))));

} // namespace

TEST_F(SettingsTest, AReadOnlyFileIsReadAndReported) {
  write("[General]\nShx=/fonts\n");
  QFile::setPermissions(path(), QFile::ReadOwner);
  if (QFile(path()).open(QIODevice::ReadWrite)) {
    // The super user writes everywhere; for him a folder in the file's place is the refusal.
    const SettingsStore store(m_folder.path());
    EXPECT_TRUE(store.problem().contains(QStringLiteral("folder")));
    return;
  }
  SettingsStore store(path());
  EXPECT_TRUE(store.problem().contains(QStringLiteral("cannot be written")));
  OdVariant found;
  EXPECT_TRUE(store.get(kRoot, QStringLiteral("Shx"), found));
  EXPECT_EQ(found.toString(), QStringLiteral("/fonts"));
}

TEST_F(SettingsTest, AFolderThatCannotBeMadeIsReported) {
  write("x");
  const SettingsStore store(path() + QStringLiteral("/below/drafton.ini"));
  EXPECT_FALSE(store.problem().isEmpty());
}

TEST_F(SettingsTest, AMissingFileIsMadeWithItsFolder) {
  const OdString deep = m_folder.filePath(QStringLiteral("a/b/drafton.ini"));
  {
    SettingsStore store(deep);
    EXPECT_TRUE(store.problem().isEmpty());
    store.set(kRoot, QStringLiteral("key"), 5);
  }
  EXPECT_TRUE(QFile::exists(deep));
}

TEST_F(SettingsTest, PathsAndListsThatWereTypedIntoTheFileAreWhole) {
  write("; mine\nToolPaletteDir = /a;/b c\nList=one, two\r\nShx=C:\\new\\%UserProfile%\n"
        "[Startup]\nToolPalettes=\n");
  const SettingsStore store(path());
  EXPECT_TRUE(store.problem().isEmpty()) << store.problem().toStdString();
  OdVariant found;
  ASSERT_TRUE(store.get(kRoot, QStringLiteral("ToolPaletteDir"), found));
  EXPECT_EQ(found.toString(), QStringLiteral("/a;/b c"));
  ASSERT_TRUE(store.get(kRoot, QStringLiteral("List"), found));
  EXPECT_EQ(found.toString(), QStringLiteral("one, two"));
  ASSERT_TRUE(store.get(kRoot, QStringLiteral("Shx"), found));
  EXPECT_EQ(found.toString(), QStringLiteral("C:\\new\\%UserProfile%"));
  EXPECT_EQ(store.keys({QStringLiteral("Startup")}), QStringList(QStringLiteral("ToolPalettes")));
}

TEST_F(SettingsTest, KeysAreComparedExactlyAndMayHoldSeparators) {
  SettingsStore store(path());
  store.set(kRoot, QStringLiteral("Key"), 1);
  store.set(kRoot, QStringLiteral("key"), 2);
  store.set(kRoot, QStringLiteral("Manager\\MTMsg/x%"), 3);
  store.flush();
  const SettingsStore again(path());
  EXPECT_EQ(again.keys(kRoot),
            QStringList({QStringLiteral("Key"), QStringLiteral("Manager\\MTMsg/x%"),
                         QStringLiteral("key")}));
}

TEST_F(SettingsTest, RemovingAKeyKeepsASectionOfTheSameName) {
  {
    SettingsStore store(path());
    store.set(kRoot, QStringLiteral("a"), 1);
    store.set({QStringLiteral("a")}, QStringLiteral("b"), 2);
    EXPECT_TRUE(store.remove(kRoot, QStringLiteral("a")));
    EXPECT_FALSE(store.remove(kRoot, QStringLiteral("a")));
  }
  const SettingsStore again(path());
  EXPECT_TRUE(again.keys(kRoot).isEmpty());
  EXPECT_EQ(again.keys({QStringLiteral("a")}), QStringList(QStringLiteral("b")));
}

TEST_F(SettingsTest, AFileThatIsDamagedMeanwhileIsLeftAlone) {
  SettingsStore store(path());
  store.set(kRoot, QStringLiteral("a"), 1);
  write("not ours any more");
  EXPECT_FALSE(store.flush());
  EXPECT_TRUE(store.problem().contains(path()));
  EXPECT_EQ(bytes(), "not ours any more");
}

TEST_F(SettingsTest, NamesOfSectionsMayBeAnything) {
  const QStringList names{QStringLiteral("General"), QStringLiteral("[x]=;#"),
                          QStringLiteral(" blanks "), QStringLiteral(""),
                          QString::fromUtf8("\xC3\xA4\n")};
  {
    SettingsStore store(path());
    for (const OdString& name : names) store.set({name}, name, name);
  }
  const SettingsStore again(path());
  EXPECT_TRUE(again.problem().isEmpty()) << bytes().toStdString();
  for (const OdString& name : names) {
    OdVariant found;
    EXPECT_TRUE(again.get({name}, name, found)) << name.toStdString();
    EXPECT_EQ(found.toString(), name);
    EXPECT_EQ(again.keys({name}), QStringList(name));
  }
}

TEST_F(SettingsTest, TwoProgramsOnOneFileKeepEachOthersChanges) {
  SettingsStore first(path()), second(path());
  first.set(kRoot, QStringLiteral("one"), 1);
  second.set(kRoot, QStringLiteral("two"), 2);
  EXPECT_TRUE(first.flush());
  EXPECT_TRUE(second.flush());
  EXPECT_EQ(SettingsStore(path()).keys(kRoot),
            QStringList({QStringLiteral("one"), QStringLiteral("two")}));
}

TEST_F(SettingsTest, AProfileIsATreeOfSections) {
  const auto store = std::make_shared<SettingsStore>(path());
  const KVPtr<IProfile> root = kvMake<Profile>(store, QStringList()).get();
  EXPECT_FALSE(root->openSection(QStringLiteral("cmddata"), false));
  const KVPtr<IProfile> node = root->openSection(QStringLiteral("cmddata"), true)
                                   ->openSection(QStringLiteral("ToolPaletteManager"), true);
  EXPECT_TRUE(root->openSection(QStringLiteral("cmddata"), false)) << "made, though empty";
  node->set(QStringLiteral("IconSize"), 32);
  OdVariant found(QStringLiteral("before"));
  EXPECT_FALSE(node->get(QStringLiteral("Other"), found));
  EXPECT_EQ(found.toString(), QStringLiteral("before"));
  EXPECT_TRUE(node->get(QStringLiteral("IconSize"), found));
  EXPECT_EQ(found, OdVariant(32));
  EXPECT_EQ(node->keys(), QStringList(QStringLiteral("IconSize")));
  EXPECT_TRUE(node->deleteValue(QStringLiteral("IconSize")));
  EXPECT_FALSE(node->deleteValue(QStringLiteral("IconSize")));
}

namespace {

class Watcher : public CKVUnknownImpl<IPropReactor> {
 public:
  void onPropertyChanged(const OdString& setting) override {
    heard << setting;
    if (onCall) onCall();
  }
  QStringList heard;
  std::function<void()> onCall;
};

class ApplicationTest : public ::testing::Test {
 protected:
  OdString setting(const char* name) {
    OdString value;
    m_application.setting(OdString::fromLatin1(name), value);
    return value;
  }
  OwnerScope m_owners;
  std::shared_ptr<SettingsStore> m_store = std::make_shared<SettingsStore>();
  Application m_application{m_store, m_owners, QStringLiteral("\\home\\data")};
  KVPtr<Watcher> m_watcher = kvMake<Watcher>();
};

} // namespace

TEST_F(ApplicationTest, AReactorHearsOnlyItsSettingAndOnlyChanges) {
  const OdString name = QStringLiteral("ToolPaletteDir");
  m_application.addPropReactor(name, m_watcher.get());
  m_application.setSetting(name, QStringLiteral("/a"));
  m_application.setSetting(name, QStringLiteral("/a"));
  m_application.setSetting(QStringLiteral("Shx"), QStringLiteral("/f"));
  EXPECT_EQ(m_watcher->heard, QStringList(name));
  m_application.removePropReactor(name, m_watcher.get());
  m_application.setSetting(name, QStringLiteral("/b"));
  EXPECT_EQ(m_watcher->heard.size(), 1);
}

TEST_F(ApplicationTest, ASettingIsAPathInTheProfile) {
  const OdString name = QStringLiteral("CommandLine/completetools");
  m_application.addPropReactor(name, m_watcher.get());
  m_application.setSetting(name, QStringLiteral("0"));
  EXPECT_EQ(setting("CommandLine\\completetools"), QStringLiteral("0"));
  const KVPtr<IProfile> section =
      m_application.profile()->openSection(QStringLiteral("CommandLine"), false);
  ASSERT_TRUE(section);
  section->set(QStringLiteral("completetools"), QStringLiteral("1"));
  EXPECT_EQ(m_watcher->heard, QStringList({name, name}));
}

TEST_F(ApplicationTest, AValueForThisRunHidesTheKeptOneUntilItIsSet) {
  const OdString name = QStringLiteral("ToolPaletteDir");
  m_application.setSetting(name, QStringLiteral("/kept"));
  m_application.addPropReactor(name, m_watcher.get());
  m_application.overrideSetting(name, QStringLiteral("/run"));
  EXPECT_EQ(setting("ToolPaletteDir"), QStringLiteral("/run"));
  OdVariant kept;
  m_store->get(kRoot, name, kept);
  EXPECT_EQ(kept.toString(), QStringLiteral("/kept"));
  m_application.setSetting(name, QStringLiteral("/kept"));
  EXPECT_EQ(setting("ToolPaletteDir"), QStringLiteral("/kept"));
  EXPECT_EQ(m_watcher->heard.size(), 2);
}

TEST_F(ApplicationTest, AReactorMayRemoveItselfAndOthers) {
  const OdString name = QStringLiteral("Shx");
  const KVPtr<Watcher> other = kvMake<Watcher>();
  m_application.addPropReactor(name, m_watcher.get());
  m_application.addPropReactor(name, other.get());
  m_watcher->onCall = [&] {
    m_application.removePropReactor(name, m_watcher.get());
    m_application.removePropReactor(name, other.get());
  };
  m_application.setSetting(name, QStringLiteral("/x"));
  m_application.setSetting(name, QStringLiteral("/y"));
  EXPECT_EQ(m_watcher->heard.size(), 1);
  EXPECT_TRUE(other->heard.isEmpty());
  m_watcher->onCall = {};
}

TEST_F(ApplicationTest, UnknownSettingsHaveNoValueAndThePalettesHaveTheirDefaultFolder) {
  OdString value = QStringLiteral("before");
  EXPECT_FALSE(m_application.setting(QStringLiteral("Shx"), value));
  EXPECT_EQ(value, QStringLiteral("before"));
  EXPECT_EQ(setting("ToolPaletteDir"), QStringLiteral("\\home\\data\\ToolPalette"));
  m_application.setSetting(QStringLiteral("UserDataFolder"), QStringLiteral("/other/place/"));
  EXPECT_EQ(m_application.userDataFolder(), QStringLiteral("\\other\\place"));
}
