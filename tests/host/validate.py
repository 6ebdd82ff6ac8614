#!/usr/bin/env python3
"""Validates documents against JSON Schemas: `validate.py FILE`, the file being {"schemas": {NAME: SCHEMA}, "cases":
[{"schema": NAME, "ref": POINTER or null, "document": ..., "valid": true}]}, where a pointer leads to the part of the
schema that counts. Prints the indices of the cases that are not as they should be."""

import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    tests = json.load(file)

validators = {}
for name, schema in tests["schemas"].items():
    jsonschema.Draft7Validator.check_schema(schema)
    validators[name, None] = jsonschema.Draft7Validator(schema)

wrong = []
for index, case in enumerate(tests["cases"]):
    key = case["schema"], case["ref"]
    if key not in validators:
        validators[key] = validators[case["schema"], None].evolve(schema={"$ref": case["ref"]})
    if validators[key].is_valid(case["document"]) != case["valid"]:
        wrong.append(index)
print(json.dumps(wrong))
