// Requests to the server of the application, answered later.
#pragma once

#include <functional>
#include <string>

namespace xrpt {

struct HttpAnswer {
  int status = 0;      // 200 and so on; 0 when no answer came
  std::string body;    // empty unless the status says that all is well
  std::string reason;  // what went wrong, in words; empty when nothing did
};

class HttpService {
 public:
  static constexpr std::size_t kMaxBytes = 64u << 20;  // of an answer

  virtual ~HttpService() = default;
  // Sends an XML document to a place of the server ("/services/...", ready to be sent). Returns at once; `answered` is
  // called once, later and on the thread that asked.
  virtual void Post(const std::string& place, const std::string& document,
                    std::function<void(const HttpAnswer&)> answered) = 0;
};

}  // namespace xrpt
