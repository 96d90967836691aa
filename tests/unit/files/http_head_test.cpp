#include "files/http_head.h"

#include <gmock/gmock.h>

namespace nimb
{
namespace
{

TEST(HttpHead, IsRead)
{
    const auto head
        = readHttpHead("HTTP/1.1 206 Partial Content\r\ncontent-length: 3\r\nContent-Range: bytes 3-5/10\r\n"
                       "ETag: \"a b\"\r\nX-Other: :\r\n"
                       "Repr-Digest: sha-512=:AA==:, sha-256=:ungWv48Bz+pBQUDeXa4iI7ADYaOWF3qctBD/YfIAFa0=:");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->status, 206);
    EXPECT_EQ(head->length, 3U);
    EXPECT_EQ(head->first, 3U);
    EXPECT_EQ(head->total, 10U);
    EXPECT_EQ(head->tag, "\"a b\"");
    EXPECT_EQ(head->sum.toHex(), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_FALSE(head->isSumPending);
}

TEST(HttpHead, MayHoldLittle)
{
    const auto head = readHttpHead("HTTP/1.0 404");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->status, 404);
    EXPECT_FALSE(head->length);
    EXPECT_TRUE(head->sum.isEmpty());
}

TEST(HttpHead, TellsWhenToTryAgainAndThatASumIsToCome)
{
    const auto head = readHttpHead("HTTP/1.1 503 Busy\r\nRetry-After:  7 \r\nNIMB-Repr-Digest: pending");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->retryAfter, 7U);
    EXPECT_TRUE(head->isSumPending);
}

TEST(HttpHead, TellsTheSizeWhereAPartIsNotThere)
{
    const auto head = readHttpHead("HTTP/1.1 416 No\r\nContent-Range: bytes */10");
    ASSERT_TRUE(head);
    EXPECT_EQ(head->total, 10U);
    EXPECT_FALSE(head->first);
}

TEST(HttpHead, IsNoneWhereItCannotBeTrusted)
{
    for (const char *const text : {
             "",
             "HTTP/2 200",
             "HTTP/1.1 2x0 OK",
             "HTTP/1.1 2000 OK",
             "HTTP/1.1  200",
             "ICY 200 OK",
             "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked",
             "HTTP/1.1 200 OK\r\nContent-Encoding: gzip",
             "HTTP/1.1 200 OK\r\nContent-Length: 5\r\nContent-Length: 6",
             "HTTP/1.1 200 OK\r\nContent-Length: -5",
             "HTTP/1.1 200 OK\r\nContent-Length: 99999999999999999999",
             "HTTP/1.1 206 OK\r\nContent-Range: bytes 5-3/10",
             "HTTP/1.1 206 OK\r\nContent-Range: bytes 5-10/10",
             "HTTP/1.1 206 OK\r\nContent-Range: bytes 5-7/*",
             "HTTP/1.1 206 OK\r\nContent-Range: lines 5-7/10",
             "HTTP/1.1 206 OK\r\nContent-Range: bytes 1/2-3",
             "HTTP/1.1 200 OK\r\n folded: x\nContent-Length: 5",
             "HTTP/1.1 200 OK\r\nno colon",
             "HTTP/1.1 200 OK\r\n: 5",
         })
        EXPECT_FALSE(readHttpHead(text)) << text;
}

TEST(HttpHead, HasNoSumWhereItIsNone)
{
    for (const char *const sum :
         {"sha-256=::", "sha-256=:AAAA:", "sha-256=:not base64!:", "sha-256=:AAAA", "md5=:AAAA:"})
        EXPECT_TRUE(readHttpHead(std::string("HTTP/1.1 200 OK\r\nRepr-Digest: ") + sum)->sum.isEmpty()) << sum;
}

} // namespace
} // namespace nimb
