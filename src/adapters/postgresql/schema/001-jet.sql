-- What the catalogue's dialect has and PostgreSQL lacks. Everything stands in the schema jet, which a
-- connection of the register searches before pg_catalog; no statement of the system is translated.
-- Bodies name their collation and their operators: a column that ignores case takes no regular expression,
-- and `like` and `format` inside them would be those of this file.

create collation jet.jet_ci (provider = icu, locale = 'zh-u-ks-level2', deterministic = false);
comment on collation jet.jet_ci is 'Texts of the register: equality, joins and order ignore case.';

-- ---- iif

create function jet.iif(condition boolean, yes anycompatible, no anycompatible) returns anycompatible
    language sql immutable parallel safe
    as 'select case when condition then yes else no end';

-- A default text beside a number reads as text.
create function jet.iif(condition boolean, yes text, no numeric) returns text
    language sql immutable parallel safe
    return case when condition then yes else no::text end;

create function jet.iif(condition boolean, yes text, no float8) returns text
    language sql immutable parallel safe
    return case when condition then yes else no::text end;

create function jet.iif(condition boolean, yes text, no integer) returns text
    language sql immutable parallel safe
    return case when condition then yes else no::text end;

-- ---- len and mid: characters, counted from 1

-- Takes the arguments that are at fault: without any the planner would call it in advance.
create function jet.invalid_call(variadic arguments integer[]) returns text
    language plpgsql immutable parallel safe
    as $$ begin raise exception '无效的过程调用或参数' using errcode = 'substring_error'; end $$;

create function jet.len(value text) returns integer
    language sql immutable parallel safe
    return pg_catalog.char_length(value);

create function jet.mid(value text, start integer) returns text
    language sql immutable parallel safe
    return case when start < 1 then jet.invalid_call(start) else pg_catalog.substr(value, start) end;

create function jet.mid(value text, start integer, count integer) returns text
    language sql immutable parallel safe
    return case when start < 1 or count < 0 then jet.invalid_call(start, count)
                else pg_catalog.substr(value, start, count) end;

create function jet.len(value numeric) returns integer
    language sql immutable parallel safe
    return pg_catalog.char_length(value::text);

create function jet.len(value float8) returns integer
    language sql immutable parallel safe
    return pg_catalog.char_length(value::text);

create function jet.len(value integer) returns integer
    language sql immutable parallel safe
    return pg_catalog.char_length(value::text);

create function jet.mid(value numeric, start integer, count integer) returns text
    language sql immutable parallel safe
    return jet.mid(value::text, start, count);

create function jet.mid(value float8, start integer, count integer) returns text
    language sql immutable parallel safe
    return jet.mid(value::text, start, count);

create function jet.mid(value integer, start integer, count integer) returns text
    language sql immutable parallel safe
    return jet.mid(value::text, start, count);

-- ---- like: ignores ASCII case, and a backslash is a character

create function jet.is_like(value text, pattern text) returns boolean
    language sql immutable parallel safe
    return value collate "C" operator(pg_catalog.~~*)
           pg_catalog.replace(pattern collate "C", '\', '\\');

create function jet.is_not_like(value text, pattern text) returns boolean
    language sql immutable parallel safe
    return value collate "C" operator(pg_catalog.!~~*)
           pg_catalog.replace(pattern collate "C", '\', '\\');

create operator jet.~~ (function = jet.is_like, leftarg = text, rightarg = text, negator = operator(jet.!~~));
create operator jet.!~~ (function = jet.is_not_like, leftarg = text, rightarg = text, negator = operator(jet.~~));

-- ---- format(value, picture)

-- A date in one of the forms that a clerk writes: 1990-03, 1990/3/5, 1990.03.05, 1990年3月5日, each with a
-- time behind it or without. Its six numbers; null for a text that is no date.
create function jet.date_parts(value text) returns integer[]
    language plpgsql immutable strict parallel safe
    set search_path = pg_catalog
    as $$
declare
    found text[] := regexp_match(
        translate(btrim(value collate "C", E' \t\r\n'), '０１２３４５６７８９', '0123456789'),
        '^([0-9]{4})(?:([-/.])([0-9]{1,2})(?:\2([0-9]{1,2}))?|年([0-9]{1,2})月(?:([0-9]{1,2})日)?)'
        '(?:(?:T| +)([0-9]{1,2}):([0-9]{1,2})(?::([0-9]{1,2}))?)?$');
    year integer := found[1];
    month integer := coalesce(found[3], found[5]);
    day integer := coalesce(found[4], found[6], '1');
    hour integer := coalesce(found[7], '0');
    minute integer := coalesce(found[8], '0');
    second integer := coalesce(found[9], '0');
begin
    if found is null or year < 100 or month not between 1 and 12 or day < 1 or hour > 23 or minute > 59
       or second > 59 then
        return null;
    end if;
    if day > extract(day from make_date(year, month, 1) + interval '1 month - 1 day') then
        return null;
    end if;
    return array[year, month, day, hour, minute, second];
end $$;

-- Runs of y, m, d, h, n, s in either case; m is the month except straight after an hour.
create function jet.format_date(value text, picture text) returns text
    language plpgsql immutable strict parallel safe
    set search_path = pg_catalog
    as $$
declare
    parts constant integer[] := jet.date_parts(value);
    result text := '';
    run text;
    symbol text;
    after_hour boolean := false;
    number integer;
begin
    if parts is null then
        return value;
    end if;
    for run in
        select (regexp_matches(picture collate "C",
                               '[yY]+|[mM]+|[dD]+|[hH]+|[nN]+|[sS]+|[^ymdhnsYMDHNS]+', 'g'))[1]
    loop
        symbol := lower(left(run, 1));
        number := case symbol
                      when 'y' then parts[1]
                      when 'm' then parts[case when after_hour then 5 else 2 end]
                      when 'd' then parts[3]
                      when 'h' then parts[4]
                      when 'n' then parts[5]
                      when 's' then parts[6]
                  end;
        if number is null then
            result := result || run;
            continue;
        end if;
        result := result || case
            when symbol = 'y' and length(run) > 2 then lpad(number::text, 4, '0')
            when symbol = 'y' then lpad((number % 100)::text, 2, '0')
            when length(run) = 1 then number::text
            else lpad(number::text, 2, '0')
        end;
        after_hour := symbol = 'h';
    end loop;
    return result;
end $$;

-- A number as a clerk writes it: separators of thousands, a sign at either end, an exponent. It is rounded
-- to what a double holds. Null for a text that is none, and for one that no double holds.
create function jet.number_of(value text) returns numeric
    language plpgsql immutable strict parallel safe
    set search_path = pg_catalog
    as $$
declare
    found text[] := regexp_match(
        btrim(value collate "C", E' \t\r\n'),
        '^([+-]?) *([0-9][0-9,]*)?(?:\.([0-9]*))?(?:[eE]([+-]?)([0-9]+))? *([+-]?) *$');
    whole text := replace(coalesce(found[2], ''), ',', '');
    decimals text := coalesce(found[3], '');
    exponent text := ltrim(coalesce(found[5], ''), '0');
    exact numeric;
begin
    if found is null or whole || decimals = '' or (found[1] <> '' and found[6] <> '')
       or length(exponent) > 3 then
        return null;
    end if;
    exact := (case when '-' in (found[1], found[6]) then '-' else '' end || '0' || whole || '.' || decimals ||
              '0e' || coalesce(found[4], '') || '0' || exponent)::numeric;
    if abs(exact) > 1.7976931348623157e308 or (exact <> 0 and abs(exact) < 5e-324) then
        return null;
    end if;
    return exact::float8::text::numeric;
end $$;

-- 0 # . , in the middle of any literal text; halves are rounded away from zero.
create function jet.format_number(value text, picture text) returns text
    language plpgsql immutable strict parallel safe
    set search_path = pg_catalog
    as $$
declare
    found constant text[] := regexp_match(picture collate "C", '^([^0#.,]*)([0#.,]+)([^0#.,]*)$');
    places constant text := found[2];
    point constant integer := coalesce(nullif(position('.' in places), 0), length(places) + 1);
    whole_places constant text := substr(places, 1, point - 1);
    decimal_places constant text := substr(places, point + 1);
    most constant integer := length(regexp_replace(decimal_places, '[^0#]', '', 'g'));
    -- A zero asks for its own place and for all before it.
    least_decimals constant integer := least(length(regexp_replace(decimal_places, '[^0]*$', '')), most);
    rounded numeric;
    whole text;
    decimals text;
begin
    if found is null or places !~ '[0#]' then
        return value;
    end if;
    rounded := round(jet.number_of(value), most);
    if rounded is null then
        return value;
    end if;
    whole := ltrim(split_part(abs(rounded)::text, '.', 1), '0');
    whole := lpad(whole, greatest(length(whole), length(regexp_replace(whole_places, '[^0]', '', 'g'))), '0');
    if position(',' in whole_places) > 0 then
        whole := regexp_replace(whole, '([0-9])(?=([0-9]{3})+$)', '\1,', 'g');
    end if;
    decimals := rtrim(split_part(abs(rounded)::text, '.', 2), '0');
    decimals := rpad(decimals, greatest(length(decimals), least_decimals), '0');
    return case when rounded < 0 then '-' else '' end || found[1] || whole ||
           case when point <= length(places) then '.' || decimals else '' end || found[3];
end $$;

-- A value that the picture does not fit comes back as it is. With exactly two arguments these win over the
-- built-in format, which has pictures of another kind.
create function jet.format(value text, picture text) returns text
    language sql immutable parallel safe
    return case when picture collate "C" operator(pg_catalog.~) '[ymdhnsYMDHNS]'
                then jet.format_date(value, picture) else jet.format_number(value, picture) end;

create function jet.format(value numeric, picture text) returns text
    language sql immutable parallel safe
    return jet.format(value::text, picture);

create function jet.format(value float8, picture text) returns text
    language sql immutable parallel safe
    return jet.format(value::text, picture);

create function jet.format(value integer, picture text) returns text
    language sql immutable parallel safe
    return jet.format(value::text, picture);

create function jet.format(value timestamp, picture text) returns text
    language sql immutable parallel safe
    return jet.format(pg_catalog.to_char(value, 'YYYY-MM-DD HH24:MI:SS'), picture);

create function jet.format(value date, picture text) returns text
    language sql immutable parallel safe
    return jet.format(pg_catalog.to_char(value, 'YYYY-MM-DD'), picture);

-- ---- identities

create function jet.new_guid() returns text
    language sql volatile parallel safe
    return '{' || pg_catalog.upper(pg_catalog.gen_random_uuid()::text) || '}';
