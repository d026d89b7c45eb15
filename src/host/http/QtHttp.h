// Requests over the network, to the server that the plant's catalogue names.
#pragma once

#include <QNetworkAccessManager>

#include "platform/Host.h"
#include "platform/HttpService.h"

namespace xrpt {

class QtHttp final : public HttpService {
 public:
  // The host, whose catalogue is asked each time, must outlive it.
  explicit QtHttp(Host& host) : host_(host) {}
  void Post(const std::string& place, const std::string& document,
            std::function<void(const HttpAnswer&)> answered) override;

 private:
  Host& host_;
  QNetworkAccessManager network_;
};

}  // namespace xrpt
