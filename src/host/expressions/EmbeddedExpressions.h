// The embedded default of the host's expression service.
#pragma once

#include "host/expressions/TokenProducer.h"
#include "platform/Host.h"

namespace xrpt {

class EmbeddedExpressions final : public ExpressionService {
 public:
  explicit EmbeddedExpressions(Host& host) : host_(host), tokens_(host) {}
  std::unique_ptr<RVEvaluator> NewEvaluator(std::wstring_view text) override;
  const RVTokenProducer& TokenProducer() const override { return tokens_; }
  std::wstring ErrorMsg(int code) const override;
  int CheckBucles(std::span<const std::wstring> names, std::span<const std::wstring> texts, int index) const override;
  bool isThereAModuleInExpression(std::wstring_view text) const override;

 private:
  Host& host_;
  xrpt::TokenProducer tokens_;
};

}  // namespace xrpt
