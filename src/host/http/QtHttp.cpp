#include "host/http/QtHttp.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace xrpt {
namespace {

constexpr int kPatience = 10'000;  // milliseconds without a byte

HttpAnswer AnswerOf(QNetworkReply& reply) {
  HttpAnswer answer;
  answer.status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (reply.error() == QNetworkReply::NoError) {
    answer.body = reply.readAll().toStdString();
  } else {
    answer.reason = reply.errorString().toStdString();
  }
  return answer;
}

// A server that goes on and on is cut off.
void Bound(QNetworkReply& reply) {
  QObject::connect(&reply, &QNetworkReply::downloadProgress, &reply, [&reply](qint64 received, qint64) {
    if (received > static_cast<qint64>(HttpService::kMaxBytes)) reply.abort();
  });
}

}  // namespace

// Another server than the one named is never asked: where an answer points elsewhere, that is the answer.
void QtHttp::Post(const std::string& place, const std::string& document,
                  std::function<void(const HttpAnswer&)> answered) {
  const std::string server = host_.devices->Server();
  QNetworkRequest request(QUrl(QString::fromStdString(server + place), QUrl::StrictMode));
  request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/xml; charset=utf-8"));
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setTransferTimeout(kPatience);
  QNetworkReply* reply = network_.post(request, QByteArray::fromStdString(document));
  Bound(*reply);
  QObject::connect(reply, &QNetworkReply::finished, reply, [reply, answered = std::move(answered)] {
    reply->deleteLater();
    answered(AnswerOf(*reply));
  });
}

}  // namespace xrpt
