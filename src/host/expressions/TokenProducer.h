// Tokens and functions for choosers, completion and colouring.
#pragma once

#include "platform/Expressions.h"
#include "platform/Host.h"

namespace xrpt {

class TokenProducer final : public RVTokenProducer {
 public:
  explicit TokenProducer(const Host& host) : host_(host) {}
  int NumberOfFunctions() const override;
  std::wstring GetFunction(int index) const override;
  FunctionHelp GetFunctionHelp(int index) const override;
  std::vector<RVToken> Tokens(std::wstring_view text) const override;

 private:
  const Host& host_;
};

}  // namespace xrpt
