#include "platform/datagram_reader.h"

#include "raw_peer.h"

#include <gmock/gmock.h>

#include <string>
#include <thread>

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace nimb::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::Key;

constexpr std::size_t plenty = 100'000'000;

std::uint16_t testPort()
{
    return static_cast<std::uint16_t>(30000 + getpid() % 10000);
}

DatagramSocket boundTo(Ipv4Address address)
{
    return std::get<DatagramSocket>(DatagramSocket::open({address, testPort()}, DatagramSocket::Sharing::exclusive));
}

class DatagramReaderTest : public testing::Test
{
protected:
    static bool isReadable(const DatagramReader &reader, int milliseconds)
    {
        pollfd watched = {.fd = static_cast<int>(reader.readable()), .events = POLLIN, .revents = 0};
        return ::poll(&watched, 1, milliseconds) == 1;
    }

    /// Until the thread has fetched everything from the system; nobody takes it from the thread meanwhile.
    void waitUntilRead() const
    {
        int bytes = 1;
        while (::ioctl(static_cast<int>(m_socket.descriptor()), FIONREAD, &bytes) == 0 && bytes > 0)
            std::this_thread::yield();
    }

    /// Until so many were taken or counted.
    static std::vector<Arrival> takeAll(DatagramReader &reader, std::size_t count, DatagramReader::Batch *counts)
    {
        std::vector<Arrival> all;
        std::size_t known = 0;
        while (known < count && isReadable(reader, 20000)) {
            DatagramReader::Batch batch = reader.take(64);
            known += batch.arrivals.size() + batch.lostBySystem;
            for (const auto &[sender, lost] : batch.losses) {
                known += lost;
                counts->losses[sender] += lost;
            }
            counts->lostBySystem += batch.lostBySystem;
            std::ranges::move(batch.arrivals, std::back_inserter(all));
        }
        return all;
    }

    const RawPeer m_ann{"127.0.2.2", testPort()};
    const RawPeer m_ben{"127.0.2.3", testPort()};
    DatagramSocket m_socket = boundTo({127, 0, 2, 1});
    DatagramReader::Batch m_counts;
};

TEST_F(DatagramReaderTest, IsReadableOnlyWhileSomethingWaits)
{
    DatagramReader reader({&m_socket}, plenty);
    EXPECT_FALSE(isReadable(reader, 0));

    m_ann.send("127.0.2.1", testPort(), "one");
    m_ann.send("127.0.2.1", testPort(), "two");
    ASSERT_TRUE(isReadable(reader, 20000));
    waitUntilRead();
    while (reader.take(1).arrivals.front().bytes != "two")
        EXPECT_TRUE(isReadable(reader, 20000));

    EXPECT_FALSE(isReadable(reader, 0));
    EXPECT_TRUE(reader.take(64).arrivals.empty());
}

TEST_F(DatagramReaderTest, ReadsAllOfItsSockets)
{
    DatagramSocket other = boundTo({127, 0, 2, 9});
    DatagramReader reader({&m_socket, &other}, plenty);

    m_ann.send("127.0.2.1", testPort(), "here");
    m_ben.send("127.0.2.9", testPort(), "there");

    EXPECT_THAT(takeAll(reader, 2, &m_counts),
                testing::UnorderedElementsAre(Field(&Arrival::bytes, "here"), Field(&Arrival::bytes, "there")));
}

TEST_F(DatagramReaderTest, ReadsWhileNobodyTakes)
{
    DatagramReader reader({&m_socket}, plenty);
    for (int round = 0; round < 200; ++round) {
        for (int i = 0; i < 50; ++i)
            m_ann.send("127.0.2.1", testPort(), std::string(1000, 'x'));
        waitUntilRead();
    }

    EXPECT_EQ(takeAll(reader, 10000, &m_counts).size(), 10000U);
    EXPECT_EQ(m_counts.lostBySystem, 0U);
}

TEST_F(DatagramReaderTest, WhatHasNoRoomIsCountedByTheSenderWhoTookIt)
{
    DatagramReader reader({&m_socket}, 10'000'000);
    for (int i = 0; i < 400; ++i) {
        m_ann.send("127.0.2.1", testPort(), std::string(50000, 'x'));
        waitUntilRead();
    }
    m_ben.send("127.0.2.1", testPort(), "-hello");

    const std::vector<Arrival> taken = takeAll(reader, 401, &m_counts);

    EXPECT_EQ(m_counts.lostBySystem, 0U);
    // 199 of them fit with what each counts beside its text, and Ben's. One more may be on its way between the system
    // and the queue when the first are taken.
    EXPECT_GE(taken.size(), 200U);
    EXPECT_LE(taken.size(), 201U);
    EXPECT_EQ(m_counts.losses.begin()->second, 401 - taken.size());
    EXPECT_THAT(taken, Contains(Field(&Arrival::bytes, "-hello")));
    EXPECT_THAT(m_counts.losses, ElementsAre(Key(Ipv4Address(127, 0, 2, 2))));
}

TEST_F(DatagramReaderTest, EndsWhileDatagramsPourIn)
{
    for (int round = 0; round < 50; ++round) {
        DatagramReader reader({&m_socket}, plenty);
        for (int i = 0; i < 100; ++i)
            m_ann.send("127.0.2.1", testPort(), "burst");
        if (round % 2 == 0)
            reader.take(10);
    }
}

TEST_F(DatagramReaderTest, SendingGoesOnMeanwhile)
{
    DatagramReader reader({&m_socket}, plenty);
    for (int i = 0; i < 1000; ++i) {
        m_ann.send("127.0.2.1", testPort(), "question");
        waitUntilRead();
        EXPECT_TRUE(m_socket.send({Ipv4Address(127, 0, 2, 2), testPort()}, "answer"));
        EXPECT_EQ(m_ann.receive(), (RawPeer::Datagram{"answer", "127.0.2.1", testPort()}));
    }
    EXPECT_EQ(takeAll(reader, 1000, &m_counts).size(), 1000U);
}

} // namespace
} // namespace nimb::test
