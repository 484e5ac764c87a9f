#include "vellox/host/services/RandomName.h"

#include <pthread.h>

#include <boost/random/mersenne_twister.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace vellox::host {

namespace {

using Generator = boost::uuids::basic_random_generator<boost::mt19937>;

// Seeding takes hundreds of system calls, so that one generator serves the process. It is never ended: decks
// may be closed in the last moments of the process.
Generator* generator = nullptr;

void forgetGenerator() {
    delete generator;
    generator = nullptr;
}

} // namespace

boost::uuids::uuid drawUuid() {
    static const int registered = pthread_atfork(nullptr, nullptr, forgetGenerator);
    if (!generator)
        generator = new Generator;
    const boost::uuids::uuid drawn = (*generator)();
    if (registered != 0) // without the notice of a fork, none may draw from the same generator again
        forgetGenerator();
    return drawn;
}

std::string makeRandomName() {
    return to_string(drawUuid());
}

} // namespace vellox::host
