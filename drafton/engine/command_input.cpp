#include "drafton/engine/command_input.h"

namespace drafton {

CommandInput::Awaiter<OdGePoint3d> CommandInput::point(const PointPrompt& prompt) {
  return ask<OdGePoint3d>(prompt);
}
CommandInput::Awaiter<double> CommandInput::distance(const DistancePrompt& prompt) {
  return ask<double>(prompt);
}
CommandInput::Awaiter<double> CommandInput::angle(const AnglePrompt& prompt) {
  return ask<double>(prompt);
}
CommandInput::Awaiter<int> CommandInput::integer(const IntegerPrompt& prompt) {
  return ask<int>(prompt);
}
CommandInput::Awaiter<double> CommandInput::real(const RealPrompt& prompt) {
  return ask<double>(prompt);
}
CommandInput::Awaiter<OdString> CommandInput::string(const StringPrompt& prompt) {
  return ask<OdString>(prompt);
}
CommandInput::Awaiter<OdString> CommandInput::keyword(const KeywordPrompt& prompt) {
  return ask<OdString>(prompt);
}

} // namespace drafton
