#include "frame/rx_members.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace rx_object_test {

class Animal : public OdRxObject {
  ODRX_DECLARE_MEMBERS(Animal);

 public:
  virtual int legs() const = 0;
};
class Dog : public Animal {
  ODRX_DECLARE_MEMBERS(Dog);

 public:
  static int alive;
  Dog() { ++alive; }
  ~Dog() override { --alive; }
  int legs() const override { return 4; }
};
class Stone : public OdRxObject {
  ODRX_DECLARE_MEMBERS(Stone);
};
int Dog::alive = 0;

ODRX_DEFINE_MEMBERS(Animal, OdRxObject, "Animal");
ODRX_DEFINE_MEMBERS(Dog, Animal, "Dog");
ODRX_DEFINE_MEMBERS(Stone, OdRxObject, "Stone");

} // namespace rx_object_test

namespace {

using namespace rx_object_test;

OdResult codeOf(void (*action)()) {
  try {
    action();
  } catch (const OdError& error) {
    return error.code();
  }
  return eOk;
}

class Objects : public testing::Test {
 protected:
  void SetUp() override {
    Dog::s_factory = &odrxFactory<Dog>;
    Animal::rxInit();
    Dog::rxInit();
    Stone::rxInit();
  }
  void TearDown() override {
    for (OdRxClass** description : {&Stone::g_pDesc, &Dog::g_pDesc, &Animal::g_pDesc})
      if (*description) deleteOdRxClass(std::exchange(*description, nullptr));
    EXPECT_EQ(Dog::alive, 0);
  }
};

TEST_F(Objects, DieWithTheirLastReference) {
  {
    const OdSmartPtr<Dog> a = odrxMake<Dog>();
    EXPECT_EQ(a->numRefs(), 1);
    OdSmartPtr<Dog> b = a;
    EXPECT_EQ(a->numRefs(), 2);
    const OdSmartPtr<Dog> c = std::move(b);
    EXPECT_TRUE(b.isNull());
    EXPECT_EQ(a->numRefs(), 2);
    EXPECT_EQ(Dog::alive, 1);
  }
  EXPECT_EQ(Dog::alive, 0);
}

TEST_F(Objects, AreCountedRightlyFromManyThreads) {
  const OdSmartPtr<Dog> dog = odrxMake<Dog>();
  std::vector<std::thread> threads;
  for (int t = 0; t < 8; ++t)
    threads.emplace_back([&dog] {
      for (int i = 0; i < 20000; ++i) {
        const OdSmartPtr<Dog> mine = dog;
        const OdSmartPtr<Animal> base = mine;
        dog->addRef();
        dog->release();
      }
    });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(dog->numRefs(), 1);
}

TEST_F(Objects, AreAttachedAndDetachedWithoutCounting) {
  OdSmartPtr<Dog> a;
  a.attach(new Dog);
  EXPECT_EQ(a->numRefs(), 1);
  Dog* const raw = a.detach();
  EXPECT_TRUE(a.isNull());
  const OdSmartPtr<Dog> b(raw, kOdRxObjAttach);
  EXPECT_EQ(b->numRefs(), 1);
  a = b;
  a = *&a;
  EXPECT_EQ(b->numRefs(), 2);
  a.attach(nullptr);
  EXPECT_EQ(b->numRefs(), 1);
}

TEST_F(Objects, ConvertToABaseFreelyAndDownwardsWithACheck) {
  const OdSmartPtr<Animal> animal = odrxMake<Dog>();
  const OdSmartPtr<Dog> dog = animal;
  EXPECT_EQ(dog.get(), animal.get());
  EXPECT_EQ(dog->numRefs(), 2);
  const OdRxObjectPtr stone = odrxMake<Stone>();
  EXPECT_THROW(OdSmartPtr<Dog>{stone}, OdError_NotThatKindOfClass);
  EXPECT_EQ(stone->numRefs(), 1);
  EXPECT_TRUE(OdSmartPtr<Dog>(OdRxObjectPtr()).isNull());
  EXPECT_EQ(odrxCast<Dog>(stone.get()), nullptr);
  EXPECT_EQ(odrxCast<Animal>(dog.get()), dog.get());
  EXPECT_EQ(odrxCast<Dog>(nullptr), nullptr);
  EXPECT_TRUE(Dog::cast(stone).isNull());
  EXPECT_EQ(Dog::cast(dog)->numRefs(), 3);
}

TEST_F(Objects, SayWhatStandsWhereSomethingElseIsExpected) {
  try {
    const OdSmartPtr<Dog> dog = OdRxObjectPtr(odrxMake<Stone>());
    FAIL();
  } catch (const OdError_NotThatKindOfClass& error) {
    EXPECT_EQ(error.code(), eNotThatKindOfClass);
    EXPECT_EQ(error.description(),
              QStringLiteral("An object of class Stone stands where Dog is expected"));
    EXPECT_STREQ(error.what(), "An object of class Stone stands where Dog is expected");
  }
}

TEST_F(Objects, AreOfTheirClassAndItsBases) {
  const auto dog = odrxMake<Dog>();
  EXPECT_EQ(dog->isA(), Dog::desc());
  EXPECT_TRUE(dog->isKindOf(Animal::desc()));
  EXPECT_TRUE(dog->isKindOf(OdRxObject::desc()));
  EXPECT_FALSE(dog->isKindOf(Stone::desc()));
  EXPECT_FALSE(dog->isKindOf(nullptr));
  EXPECT_EQ(Dog::desc()->parent(), Animal::desc());
  EXPECT_EQ(Dog::desc()->isA(), OdRxClass::desc());
}

TEST_F(Objects, CannotBeCopiedUnlessTheirClassSaysHow) {
  EXPECT_EQ(codeOf([] { odrxMake<Dog>()->clone(); }), eNotApplicable);
}

TEST_F(Objects, AreMadeByTheFactoryOfTheirClass) {
  EXPECT_EQ(Dog::createObject()->numRefs(), 1);
  EXPECT_EQ(Dog::desc()->create()->isA(), Dog::desc());
  EXPECT_TRUE(Dog::desc()->hasFactory());
  EXPECT_FALSE(Animal::desc()->hasFactory());
  EXPECT_TRUE(Animal::desc()->create().isNull());
  EXPECT_EQ(Animal::pseudoConstructor(), nullptr);
  EXPECT_EQ(codeOf([] { Animal::createObject(); }), eNotApplicable);
}

TEST_F(Objects, OutliveTheirClass) {
  const auto dog = odrxMake<Dog>();
  Dog::rxUninit();
  EXPECT_EQ(Dog::desc(), nullptr);
  EXPECT_EQ(dog->isA(), nullptr);
  EXPECT_FALSE(dog->isKindOf(Animal::desc()));
  EXPECT_EQ(dog->legs(), 4);
}

TEST_F(Objects, LoseTheirBasesWithTheBasesClass) {
  const auto dog = odrxMake<Dog>();
  Animal::rxUninit();
  EXPECT_EQ(Dog::desc()->parent(), nullptr);
  EXPECT_TRUE(dog->isKindOf(Dog::desc()));
  EXPECT_FALSE(dog->isKindOf(OdRxObject::desc()));
}

TEST_F(Objects, HaveClassesThatAreRegisteredOnce) {
  EXPECT_EQ(codeOf([] { Dog::rxInit(); }), eClassAlreadyRegistered);
  EXPECT_EQ(static_cast<int>(eClassAlreadyRegistered), 313);
  EXPECT_EQ(codeOf([] { newOdRxClass(QStringLiteral("Dog"), nullptr); }), eClassAlreadyRegistered);
}

TEST_F(Objects, HaveClassesThatAreDeletedOnce) {
  Dog::rxUninit();
  EXPECT_EQ(codeOf([] { Dog::rxUninit(); }), eClassNotRegistered);
  EXPECT_EQ(static_cast<int>(eClassNotRegistered), 255);
  EXPECT_EQ(codeOf([] { deleteOdRxClass(nullptr); }), eClassNotRegistered);
  Dog::rxInit();
  EXPECT_NE(Dog::desc(), nullptr);
}

TEST_F(Objects, HaveClassesThatAreFoundByName) {
  EXPECT_EQ(odrxFindClass(QStringLiteral("Dog")), Dog::desc());
  EXPECT_EQ(odrxFindClass(QStringLiteral("dog")), nullptr);
  const QStringList names = odrxClassNames();
  EXPECT_LT(names.indexOf(QStringLiteral("Animal")), names.indexOf(QStringLiteral("Dog")));
  EXPECT_EQ(Dog::desc()->appName(), OdString());
}

class NamedModule : public OdRxModule {
 public:
  NamedModule()
    : OdRxModule(nullptr) {}
  OdString moduleName() const override { return QStringLiteral("Zoo"); }
  void initApp() override {}
  void uninitApp() override {}
};

TEST_F(Objects, HaveClassesThatSayWhoseTheyAre) {
  Dog::rxUninit();
  auto* const module = new NamedModule;
  EXPECT_EQ(module->numRefs(), 0);
  module->addRef();
  Dog::rxInit(module);
  EXPECT_EQ(Dog::desc()->appName(), QStringLiteral("Zoo"));
  module->release();
}

} // namespace
