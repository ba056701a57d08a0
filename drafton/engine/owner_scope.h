// Who registers something: the program itself, or a module.
#pragma once

namespace drafton {

/// The number of the module that is being loaded, 0 otherwise. Registries keep it with what they
/// are given, so that all of it can be dropped when the module is unloaded: nothing may point into
/// a library that is gone.
class OwnerScope {
 public:
  int current() const { return m_current; }

  /// Makes `owner` the current one until the end of the block.
  class Entered {
   public:
    Entered(OwnerScope& scope, int owner)
      : m_scope(scope)
      , m_former(scope.m_current) {
      scope.m_current = owner;
    }
    Entered(const Entered&) = delete;
    Entered& operator=(const Entered&) = delete;
    ~Entered() { m_scope.m_current = m_former; }

   private:
    OwnerScope& m_scope;
    int m_former;
  };

 private:
  int m_current = 0;
};

} // namespace drafton
