#include "platform/localmodel/HttpResponse.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace vantle {
namespace {

using State = HttpResponse::State;

const QByteArray kWithLength = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello";
const QByteArray kInChunks = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                             "3\r\nhel\r\n2;name=value\r\nlo\r\n0\r\nTrailer: x\r\n\r\n";
const QByteArray kToTheEnd = "HTTP/1.0 404 Not Found\nServer: s\n\nhello";

State stateAfter(const QByteArray& bytes) { return HttpResponse().take(bytes); }

TEST(HttpResponse, BodyEndsByItsLength) {
    HttpResponse response;
    EXPECT_EQ(response.take(kWithLength), State::Complete);
    EXPECT_EQ(response.status(), 200);
    EXPECT_EQ(response.body(), "hello");
    EXPECT_EQ(response.take("more"), State::Complete);
    EXPECT_EQ(response.body(), "hello") << "nothing follows the end";
}

TEST(HttpResponse, BodyEndsByItsLastChunk) {
    HttpResponse response;
    EXPECT_EQ(response.take(kInChunks), State::Complete);
    EXPECT_EQ(response.body(), "hello");
}

TEST(HttpResponse, BodyEndsWithTheConnection) {
    HttpResponse response;
    EXPECT_EQ(response.take(kToTheEnd), State::Incomplete);
    EXPECT_EQ(response.finish(), State::Complete);
    EXPECT_EQ(response.status(), 404);
    EXPECT_EQ(response.body(), "hello");
}

TEST(HttpResponse, EmptyBodiesAreBodies) {
    EXPECT_EQ(stateAfter("HTTP/1.1 200 OK\r\ncontent-LENGTH:0\r\n\r\n"), State::Complete);
    EXPECT_EQ(stateAfter("HTTP/1.1 200\r\nTransfer-Encoding: Chunked\r\n\r\n0\r\n\r\n"),
              State::Complete);
}

TEST(HttpResponse, InterimResponsesArePassedOver) {
    HttpResponse response;
    EXPECT_EQ(response.take("HTTP/1.1 100 Continue\r\nX: y\r\n\r\n" + kWithLength),
              State::Complete);
    EXPECT_EQ(response.status(), 200);
}

TEST(HttpResponse, ResponseThatIsCutOffIsBroken) {
    for (const QByteArray& whole : {kWithLength, kInChunks})
        for (qsizetype length = 0; length < whole.size(); ++length) {
            HttpResponse response;
            EXPECT_EQ(response.take(whole.first(length)), State::Incomplete) << length;
            EXPECT_EQ(response.finish(), State::Broken) << length;
            EXPECT_EQ(response.take(whole), State::Broken);
        }
}

TEST(HttpResponse, WhatIsNoHttpIsBroken) {
    for (const char* bytes :
         {"SSH-2.0-server\r\n", "{\"choices\":[]}\n", "\n", "HTTP/2 200 OK\r\n",
          "HTTP/1.1  200 OK\r\n", "HTTP/1.1 abc\r\n", "HTTP/1.1 20\r\n", "HTTP/1.1 2000 OK\r\n",
          "HTTP/1.1 099 Low\r\n", "HTTP/1.1 600 High\r\n", "HTTP/1.1 200 OK\r\nno header\r\n",
          "HTTP/1.1 200 OK\r\n: nameless\r\n", "HTTP/1.1 200 OK\r\nContent-Length: five\r\n",
          "HTTP/1.1 200 OK\r\nContent-Length: -5\r\n", "HTTP/1.1 200 OK\r\nContent-Length: +5\r\n",
          "HTTP/1.1 200 OK\r\nContent-Length:\r\n",
          "HTTP/1.1 200 OK\r\nContent-Length: 5\r\nContent-Length: 6\r\n",
          "HTTP/1.1 200 OK\r\nTransfer-Encoding: gzip\r\n"})
        EXPECT_EQ(stateAfter(bytes), State::Broken) << bytes;
}

TEST(HttpResponse, BadChunksAreBroken) {
    const QByteArray head = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    for (const char* chunks : {"x\r\n", "\r\n", "-3\r\nabc\r\n", "3\r\nabcdef\r\n",
                               "FFFFFFFFFFFFFFFFFF\r\n", "7FFFFFFFFFFFFFFF\r\n", "200000\r\n"})
        EXPECT_EQ(stateAfter(head + chunks), State::Broken) << chunks;
}

TEST(HttpResponse, LongerThanTheBoundIsBroken) {
    EXPECT_EQ(stateAfter("HTTP/1.1 200 OK\r\nContent-Length: 1048577\r\n"), State::Broken);
    EXPECT_EQ(stateAfter("HTTP/1.1 200 OK\r\nX: " + QByteArray(9000, 'x')), State::Broken)
        << "a line without end";
    HttpResponse response;
    EXPECT_EQ(response.take("HTTP/1.1 200 OK\r\n\r\n"), State::Incomplete);
    EXPECT_EQ(response.take(QByteArray(HttpResponse::maxSize - 100, 'x')), State::Incomplete);
    EXPECT_EQ(response.take(QByteArray(100, 'x')), State::Broken);
}

RC_GTEST_PROP(HttpResponse, PiecesOfAnySizeMakeTheSame, ()) {
    const QByteArray whole = *rc::gen::element(kWithLength, kInChunks, kToTheEnd);
    HttpResponse response;
    for (qsizetype at = 0; at < whole.size();) {
        const auto size = std::min(*rc::gen::inRange<qsizetype>(1, 20), whole.size() - at);
        RC_ASSERT(response.take(whole.sliced(at, size)) != State::Broken);
        at += size;
    }
    RC_ASSERT(response.finish() == State::Complete);
    RC_ASSERT(response.body() == "hello");
}

RC_GTEST_PROP(HttpResponse, NoBytesDoHarm, ()) {
    const auto piece = rc::gen::element<std::string>(
        "HTTP/1.1 ", "200", " OK", "\r\n", "\n", "Content-Length: ", "Transfer-Encoding: chunked",
        "3", "abc", "0", ";", ":", "FFFFF", "-", std::string(1, '\0'), "\xFF");
    HttpResponse response;
    for (const std::string& next : *rc::gen::container<std::vector<std::string>>(piece))
        response.take(QByteArray::fromStdString(next));
    const State end = response.finish();
    RC_ASSERT(end == State::Complete || end == State::Broken);
    RC_ASSERT(end == State::Broken || (response.status() >= 200 && response.status() <= 599));
}

} // namespace
} // namespace vantle
