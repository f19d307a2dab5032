"""The version of the library that this binding is of."""

# Generated from include/planegeo.h by bindings/generate.py. Do not edit.

__version__ = "1.0.0"
