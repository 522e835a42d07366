# Two commands for a person: `make run` shows what the mapping does, `make test` builds and runs every test. Both install
# what is missing on Debian 12, as root or with sudo.

JOBS := $(shell nproc)
SOURCES := $(shell git ls-files '*.cpp' '*.h' 2>/dev/null)
export CCACHE_DIR ?= $(CURDIR)/build/ccache
export CTEST_PARALLEL_LEVEL ?= $(JOBS)

run_packages := g++ cmake ninja-build pkg-config ccache libxml2-dev nlohmann-json3-dev libcli11-dev \
	libyang2-dev
test_packages := $(run_packages) clang clang-format clang-tidy libclang-rt-14-dev binutils git \
	libgtest-dev libyang2-tools \
	libxslt1-dev valgrind python3 \
	abigail-tools dpkg-dev fakeroot file fish man-db mandoc zsh
docs_packages := python3 chromium chromium-driver
proof_packages := $(test_packages) gcovr

.PHONY: run test test-docs reference fuzz sweep bench coverage mutation abi-baseline format format-check tidy generate \
	test-release test-sanitize test-thread clean

run:
	scripts/install-packages $(run_packages)
	cmake --preset run
	cmake --build --preset run -j $(JOBS)
	scripts/show-examples build/run/bin/ocbgp

# Everything that has to hold: formatted, generated sources fresh, no warning of either compiler or of clang-tidy, all
# tests, all tests again under the address and undefined-behaviour sanitizers, threads under the thread sanitizer, and the
# reference in a browser.
test:
	scripts/install-packages $(test_packages)
	$(MAKE) format-check
	$(MAKE) test-release
	$(MAKE) tidy
	$(MAKE) test-sanitize
	$(MAKE) test-thread
	$(MAKE) test-docs

test-release test-sanitize test-thread: test-%:
	cmake --preset $*
	cmake --build --preset $* -j $(JOBS)
	ctest --preset $*

# The reference as a page, in a headless Chromium. What else the documents say, `make test-release` tests.
test-docs:
	scripts/install-packages $(docs_packages)
	tests/docs/page_test.py

# The mapping reference, of what the library does today.
reference:
	cmake --preset release
	cmake --build --preset release -j $(JOBS) --target ocbgp
	scripts/mapping-reference --ocbgp build/release/bin/ocbgp

# Each fuzzer for so many seconds, as many at once as there are processors.
FUZZ_SECONDS ?= 600
fuzz:
	scripts/install-packages $(test_packages)
	cmake --preset sanitize
	cmake --build --preset sanitize -j $(JOBS) --target fuzzers
	cd build/sanitize && ls bin | sed -n 's/^fuzz_//p' | xargs -P $(JOBS) -I NAME sh -c \
		'$(CURDIR)/scripts/fuzz bin/fuzz_NAME $(FUZZ_SECONDS) fuzz/NAME > fuzz_NAME.log 2>&1 || \
		{ tail -n 40 fuzz_NAME.log; exit 1; }; tail -n 6 fuzz_NAME.log'

# Measures the library beside its peers and writes docs/performance.md. Times need a quiet machine; it takes some 20
# minutes.
BENCH_ROUNDS ?= 5
bench:
	scripts/install-packages $(test_packages)
	cmake --preset release
	cmake --build --preset release -j $(JOBS) --target bench
	bench/run.py --build build/release --rounds $(BENCH_ROUNDS)

# Every operation of the platform failing once in every exchange, with the sanitizers watching: how many there are.
sweep:
	scripts/install-packages $(test_packages)
	cmake --preset sanitize
	cmake --build --preset sanitize -j $(JOBS) --target sweep_test
	build/sanitize/bin/sweep_test --gtest_filter='Sweep.*'

# What the tests reach of the library and of the host: build/coverage/summary.txt and index.html.
coverage:
	scripts/install-packages $(proof_packages)
	cmake --preset coverage
	find build/coverage -name '*.gcda' -delete
	cmake --build --preset coverage -j $(JOBS)
	ctest --preset coverage
	scripts/coverage build/coverage

# Whether the tests notice a library that is wrong in one place: `make mutation MUTATION="--count 50 --only peer.cpp"`.
mutation:
	scripts/install-packages $(proof_packages)
	cmake --preset mutation
	cmake --build --preset mutation -j $(JOBS)
	scripts/mutation --build build/mutation $(MUTATION)

format-check:
	clang-format --dry-run -Werror $(SOURCES)

format:
	clang-format -i $(SOURCES)

# The library's sources and the host's, not the tests.
tidy:
	cmake --preset sanitize
	run-clang-tidy -quiet -j $(JOBS) -p build/sanitize '^$(CURDIR)/(manageability|host)/.*\.cpp$$'

generate:
	cmake --preset release
	cmake --build --preset release --target generate

# After a change of the library's interface that is meant: CHANGELOG.md says it, and the version goes by it.
abi-baseline:
	scripts/install-packages $(test_packages)
	cmake --preset release
	cmake --build --preset release -j $(JOBS) --target vmf_map_oc_bgp
	scripts/abi write build/release/lib/libvmf_map_oc_bgp.so

clean:
	rm -rf build
