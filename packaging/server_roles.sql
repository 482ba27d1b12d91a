-- Rights in a store on PostgreSQL, given by its keeper, who owns the tables. May be run again.
DO $$
BEGIN
    IF NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = 'tamrivo_reader') THEN
        CREATE ROLE tamrivo_reader;
    END IF;
    IF NOT EXISTS (SELECT 1 FROM pg_roles WHERE rolname = 'tamrivo_editor') THEN
        CREATE ROLE tamrivo_editor;
    END IF;
END
$$;

GRANT SELECT ON ALL TABLES IN SCHEMA public TO tamrivo_reader, tamrivo_editor;
-- A check and a backup ask for the last number.
GRANT SELECT ON SEQUENCE ObjectNumber TO tamrivo_reader, tamrivo_editor;

GRANT INSERT, UPDATE, DELETE
    ON Locus, Allele, AnalysisParameter, AnalysisParameterTag, Project, Dye, Setting
    TO tamrivo_editor;
GRANT USAGE ON SEQUENCE ObjectNumber TO tamrivo_editor;

-- The history is only ever added to.
REVOKE UPDATE, DELETE, TRUNCATE ON History, Seal FROM tamrivo_editor;
GRANT INSERT ON History, Seal TO tamrivo_editor;
GRANT USAGE ON SEQUENCE history_number_seq TO tamrivo_editor;
GRANT DELETE ON Unsealed TO tamrivo_editor;
