# The project's front door; the build itself is CMake's (see CMakePresets.json).

export CTEST_PARALLEL_LEVEL ?= $(shell nproc)

.PHONY: help run test build bench lint sanitize screenshots clean packages programs configure

help:                ## this list
	@sed -n 's/^\([a-z]*\):.*## /    make \1\t/p' $(MAKEFILE_LIST) | expand -t 24

run: programs        ## open the program on the default store, or on $TAMRIVO_STORE
	@scripts/run

test: build          ## build everything and run the tests
	ctest --preset default

build: configure     ## build everything into build/
	cmake --build --preset default

bench: configure     ## measure, one line a figure
	cmake --build --preset default --target tamrivo_bench
	build/bin/tamrivo_bench

lint: build          ## check formatting and run the static analysis
	scripts/lint

sanitize: packages   ## run the tests under the address and undefined behaviour sanitizers
	cmake --preset sanitize
	cmake --build --preset sanitize
	ctest --preset sanitize

screenshots: build   ## draw every window of the desktop program into docs/images/
	QT_QPA_PLATFORM=offscreen build/bin/tamrivo_screenshots examples/sample_loci.tsv docs/images

clean:               ## remove everything built
	rm -rf build

programs: configure
	cmake --build --preset default --target programs

configure: packages
	cmake --preset default

packages:
	@scripts/install-packages
