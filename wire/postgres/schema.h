// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

namespace wirepane {

// What a wire is made of. Each month of the log is a table of its own, made with its first row; `prev` leads
// from a row to the one before of its service. A role reads what `entitlements` names for it, or for a role
// that it belongs to.
inline constexpr auto wireSchema = R"sql(
CREATE SCHEMA wire;
CREATE TABLE wire.head(
    one boolean PRIMARY KEY DEFAULT true CHECK(one),
    epoch text NOT NULL,
    last bigint NOT NULL,
    format integer NOT NULL,
    zone text NOT NULL,
    moment bigint NOT NULL);
CREATE TABLE wire.log(
    sequence bigint NOT NULL,
    service integer NOT NULL,
    prev bigint NOT NULL,
    moment bigint NOT NULL,
    kind text NOT NULL,
    body bytea NOT NULL,
    PRIMARY KEY(sequence, moment)) PARTITION BY RANGE(moment);
CREATE TABLE wire.identities(
    service integer NOT NULL,
    identity text NOT NULL,
    day integer NOT NULL,
    number integer NOT NULL,
    digest bigint NOT NULL,
    PRIMARY KEY(service, identity),
    UNIQUE(service, day, number));
CREATE TABLE wire.sources(
    source text PRIMARY KEY,
    position text NOT NULL,
    sequence bigint NOT NULL);
CREATE TABLE wire.beats(
    point text PRIMARY KEY,
    moment timestamptz NOT NULL);
CREATE TABLE wire.entitlements(
    role text NOT NULL,
    service integer NOT NULL,
    PRIMARY KEY(role, service));

CREATE FUNCTION wire.open_month(seconds bigint) RETURNS void LANGUAGE plpgsql AS $$
DECLARE
    month timestamptz := date_trunc('month', to_timestamp(seconds), 'UTC');
    name text := 'log_' || to_char(month AT TIME ZONE 'UTC', 'YYYYMM');
BEGIN
    IF to_regclass('wire.' || name) IS NULL THEN
        EXECUTE format('CREATE TABLE wire.%I PARTITION OF wire.log FOR VALUES FROM (%s) TO (%s)', name,
            extract(epoch FROM month)::bigint,
            extract(epoch FROM (month AT TIME ZONE 'UTC' + interval '1 month') AT TIME ZONE 'UTC')::bigint);
    END IF;
END $$;
CREATE FUNCTION wire.may_read(wanted integer) RETURNS boolean LANGUAGE sql STABLE SECURITY DEFINER AS $$
    SELECT wanted = 0 OR EXISTS(
        SELECT 1 FROM wire.entitlements
        WHERE service = wanted AND pg_has_role(session_user, role::name, 'member'))
$$;
ALTER TABLE wire.log ENABLE ROW LEVEL SECURITY;
CREATE POLICY entitled ON wire.log FOR SELECT USING (wire.may_read(service));
)sql";

}  // namespace wirepane
