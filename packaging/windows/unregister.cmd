@echo off
rem Takes back what register.cmd did; to be run as administrator.
call "%~dp0register.cmd" /u
