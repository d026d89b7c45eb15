// Requests to a server in this process: what reaches it, and what its answers become.
#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include "host/http/QtHttp.h"
#include "support/TestHost.h"

namespace xrpt {
namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

class Requests : public HostTest {
 protected:
  Requests() {
    server.listen(QHostAddress::LocalHost);
    Name("http://127.0.0.1:" + std::to_string(server.serverPort()));
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
      QTcpSocket* socket = server.nextPendingConnection();
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        received += socket->readAll().toStdString();
        if (!received.ends_with("</params>")) return;
        socket->write(answer.data(), static_cast<qint64>(answer.size()));
        socket->disconnectFromHost();
      });
    });
  }
  void Name(const std::string& address) {
    host.WriteCfg("devices.xml", "<devices><server>" + address + "</server></devices>");
  }
  HttpAnswer Ask() {
    std::optional<HttpAnswer> given;
    http.Post("/a/b.xml?c=1&d=%20", "<params>x</params>", [&](const HttpAnswer& got) { given = got; });
    EXPECT_FALSE(given) << "answers come later";
    QElapsedTimer clock;
    for (clock.start(); !given && clock.elapsed() < 20'000;) QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_TRUE(given);
    return given.value_or(HttpAnswer());
  }

  int argumentCount = 1;
  char name[5] = "http";
  char* arguments[1] = {name};
  QCoreApplication application{argumentCount, arguments};
  QTcpServer server;
  std::string received;
  std::string answer;
  QtHttp http{*host};
};

TEST_F(Requests, PlaceAndDocumentArriveAndTheAnswerComesBack) {
  answer = "HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n<ok/>\n";
  const HttpAnswer got = Ask();
  EXPECT_EQ(got.status, 200);
  EXPECT_EQ(got.body, "<ok/>\n");
  EXPECT_EQ(got.reason, "");
  EXPECT_THAT(received, StartsWith("POST /a/b.xml?c=1&d=%20 HTTP/1.1"));
  EXPECT_THAT(received, EndsWith("\r\n\r\n<params>x</params>"));
}

TEST_F(Requests, WhatIsNoAnswerHasAReason) {
  answer = "HTTP/1.1 503 Busy\r\nContent-Length: 4\r\n\r\nlate";
  EXPECT_EQ(Ask().status, 503);
  received.clear();
  EXPECT_NE(Ask().reason, "");
  received.clear();
  EXPECT_EQ(Ask().body, "");
  for (const char* address : {"", "no address", "http://127.0.0.1:1"}) {
    Name(address);
    EXPECT_NE(Ask().reason, "") << address;
  }
}

TEST_F(Requests, AnswersThatPointElsewhereAreNotFollowed) {
  answer = "HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:" + std::to_string(server.serverPort()) +
           "/other\r\nContent-Length: 0\r\n\r\n";
  EXPECT_EQ(Ask().status, 302);
  EXPECT_EQ(received.find("/other"), std::string::npos);
}

}  // namespace
}  // namespace xrpt
